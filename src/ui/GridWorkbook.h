// A grid as a spreadsheet (Office Open XML): numbers and dates as such, text as text.
#pragma once

#include <QString>

#include <stdexcept>

namespace velcro::ui {

class RowGrid;

/// Why a workbook could not be written, in words for the user; what() is UTF-8.
class WorkbookError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Writes the visible columns in their order and all rows of the view to the file: a bold heading
/// that stays in sight and filters, columns as wide as on the screen. Long work shows its progress
/// and can be cancelled, which gives false. A cancelled or failed one leaves no file; a failure is a
/// WorkbookError.
bool writeWorkbook(const RowGrid& grid, const QString& sheetName, const QString& path);

} // namespace velcro::ui
