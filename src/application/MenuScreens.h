// The screens that the main menu opens, filled where the program is put together.
#pragma once

#include <QDialog>

#include <functional>
#include <memory>

struct MenuScreens
{
    using Maker = std::function<std::unique_ptr<QDialog>(QWidget* parent)>;

    Maker repairOrders; // TfrmCRO100
    Maker systemCodes;  // TfrmCRO001
    Maker technicians;  // TfrmCRO002
    Maker processCodes; // TfrmCRO003
};

inline MenuScreens gMenuScreens;
