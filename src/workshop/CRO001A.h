// Adds, changes and removes one system code of the workshop.
#pragma once

#include "screens/DetailScreen.h"

class TfrmCRO001A : public DetailScreen
{
public:
    explicit TfrmCRO001A(QWidget* parent = nullptr);
};
