// Adds, changes and removes one process code of the workshop.
#pragma once

#include "screens/DetailScreen.h"

class TfrmCRO003A : public DetailScreen
{
public:
    explicit TfrmCRO003A(QWidget* parent = nullptr);
};
