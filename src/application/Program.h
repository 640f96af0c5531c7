// The program put together: the main form, the data modules, the hooks between the layers, and the
// screens behind the menu.
#pragma once

#include "application/MAIN000.h"

#include <QStringList>

class Program
{
public:
    /// Arguments are those after the program's name. Connects nothing.
    explicit Program(const QStringList& arguments);
    ~Program();

    TfrmMAIN000& mainForm() { return mainForm_; }
    /// Shows the main form, which starts everything, and stays until it closes. Returns the exit
    /// status: 1 for a start that failed or was turned down.
    int run();

private:
    TfrmMAIN000 mainForm_;
};
