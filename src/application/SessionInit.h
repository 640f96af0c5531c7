// The session values that the program gives itself before it has read or asked anything.
#pragma once

#include <QString>

class QWidget;

/// Program, seat, defaults, buffers and working folders. programFile is the path of the running
/// program.
void sfg_InitGlobalVars(const QString& programFile);

/// The suite's hidden working grids, made invisible on the main form. No unit of this program fills
/// them.
void sfvel_InitSystem(QWidget& mainForm);
