// The steps of a sweep that work across all tables.
#pragma once

/// Brings every nvarchar column DESCRIPTION1 to DESCRIPTION3, of any table or view of the database,
/// to 150 characters, wider ones too. Throws VelmaraError when one cannot be changed.
void tb_Update_STKDesc_ColLength();

/// Widens those that are still shorter, and lets pass what cannot be changed. True when there are
/// such columns; a failed look-up is shown and gives false.
bool tb_Update_Descriptions_Length();
