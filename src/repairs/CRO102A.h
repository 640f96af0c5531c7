// The detail screen of an item's process: adds, changes and removes one work step.
#pragma once

#include "screens/DetailScreen.h"

class TfrmCRO102A : public DetailScreen
{
    Q_OBJECT

public:
    explicit TfrmCRO102A(QWidget* parent = nullptr);

protected:
    QStringList selectLines() const override;
    bool Validation() override;
};
