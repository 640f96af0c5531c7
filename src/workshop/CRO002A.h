// Adds, changes and removes one technician of the workshop.
#pragma once

#include "screens/DetailScreen.h"

class TfrmCRO002A : public DetailScreen
{
public:
    explicit TfrmCRO002A(QWidget* parent = nullptr);
};
