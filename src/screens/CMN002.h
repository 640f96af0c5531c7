// TfrmCMN002, TfrmCMN003 and TfrmCMN006, the messages that are only read: information, message and
// warning. They differ in colours and in the lines before the text.
#pragma once

#include "screens/MessageForm.h"

class TfrmTextMessage : public MessageForm
{
    Q_OBJECT

public:
    TfrmTextMessage(const MessageLook& look, const QString& text, int xTimer);

protected:
    QPushButton* btnClose = nullptr;
};

/// Information; tells the program's version too.
class TfrmCMN002 : public TfrmTextMessage
{
public:
    TfrmCMN002(const QString& message, int xTimer, const QString& version);
};

/// A plain message.
class TfrmCMN003 : public TfrmTextMessage
{
public:
    TfrmCMN003(const QString& message, int xTimer);
};

/// A warning.
class TfrmCMN006 : public TfrmTextMessage
{
public:
    TfrmCMN006(const QString& message, int xTimer);
};
