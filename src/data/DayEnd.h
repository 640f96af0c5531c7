// The end of the day: asked for by the first user of the next day, run by a program of its own.
#pragma once

/// Asks for yesterday's end of day (a row of SYSEODLog) and starts velEOD, unless somebody has done
/// so. gEODInitiated becomes "Y" when this call did. True, or what the run routine gave for the
/// row. A failed read is shown as "SFVEL-10" and thrown on.
bool sfvel_Check_EndOfDay_Run();

/// Whether a run that this machine asked for is not finished. A failed read is shown as "SFVEL-11"
/// and gives false.
bool sfvel_Check_DayEnd_Progress();
