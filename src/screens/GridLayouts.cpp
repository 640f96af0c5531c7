#include "screens/GridLayouts.h"

#include "data/DataUVEL.h"
#include "data/DateTimeText.h"
#include "data/Errors.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "platform/seat/Folders.h"
#include "platform/seat/Shell.h"
#include "screens/CMN005.h"
#include "ui/GridLayout.h"
#include "ui/GridWorkbook.h"
#include "ui/Modal.h"
#include "ui/RowGrid.h"

#include <QFileInfo>

#include <algorithm>

using velcro::ui::RowGrid;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto unit = "SysFuncVelmara"_L1;

} // namespace

bool mayShowColumn(const velcro::ui::GridColumn& column) {
    static constexpr std::array words{"COST"_L1, "PROFIT"_L1, "GP"_L1};
    const QString name = column.field.toUpper();
    return gAllowViewCost == "Y"_L1 ||
           std::ranges::none_of(words, [&](auto word) { return name.contains(word); });
}

void sfvel_GridCustom(RowGrid& xGrid, const QString& xGridName) {
    TfrmCMN005 form(xGrid, xGrid.window());
    velcro::ui::runModal(form);
    if (form.xApply) {
        velcro::ui::arrangeGrid(xGrid, form.columns());
        xGrid.fitColumns();
    }
    if (form.xSave) {
        sfvel_SaveGrids(xGridName, velcro::ui::gridLayoutText(xGrid));
    }
    if (form.xDelete) {
        sfvel_DeleteGrids(xGridName);
    }
}

void sfvel_SaveGrids(const QString& xGridName, const QString& layout) {
    auto& update = gData->vUpdSQL;
    update.setText({
        u"MERGE INTO SYSSaveGrids AS [Target]"_s,
        u"  USING (VALUES (:CO, :UserCode, :ScreenID))"_s,
        u"     AS [Source] ([CO], [UserCode], [ScreenID])"_s,
        u"     ON Target.CO = Source.CO"_s,
        u"    AND Target.UserCode = Source.UserCode"_s,
        u"    AND Target.ScreenID = Source.ScreenID"_s,
        u"   WHEN MATCHED THEN"_s,
        u" UPDATE SET [GridSettings] = :GridSettings"_s,
        u"   WHEN NOT MATCHED THEN"_s,
        u" INSERT ([CO], [UserCode], [ScreenID], [GridSettings])"_s,
        u" VALUES (:CO, :UserCode, :ScreenID, :GridSettings);"_s,
    });
    try {
        update.ParamByName(u"CO"_s).setString(gCO);
        update.ParamByName(u"UserCode"_s).setString(gUserCode);
        update.ParamByName(u"ScreenID"_s).setString(xGridName);
        update.ParamByName(u"GridSettings"_s).setString(layout);
        update.ExecSQL();
    } catch (const std::runtime_error& error) {
        throw VelmaraError(
            u"%1.sgrd_SaveGrids - Failed to save grid layout for \"%2\". Reason: %3"_s.arg(
                unit, xGridName, errorText(error)));
    }
}

void sfvel_LoadSavedGrid(RowGrid& myGrid, const QString& sGridName) {
    readRows(gData->vLoadQuery1,
             {
                 "SELECT [GridSettings] FROM SysSaveGrids WITH (NOLOCK)",
                 " WHERE [CO] = " + QuotedStr(gCO),
                 " AND [UserCode] = " + QuotedStr(gUserCode),
                 " AND [ScreenID] = " + QuotedStr(sGridName),
             },
             raised(), [&](const Statement& layout) {
                 if (layout.IsEmpty() ||
                     !velcro::ui::restoreGridLayout(
                         myGrid, layout.FieldByName(u"GridSettings"_s).AsString())) {
                     return;
                 }
                 const auto& columns = myGrid.rowModel().columns();
                 for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
                     if (!mayShowColumn(columns[i])) {
                         myGrid.setColumnHidden(i, true);
                     }
                 }
             });
}

void sfvel_DeleteGrids(const QString& xGridName) {
    sfg_AddSQL(
        {
            "DELETE FROM SysSaveGrids ",
            " WHERE CO = " + QuotedStr(gCO),
            " AND UserCode = " + QuotedStr(gUserCode),
            " AND ScreenID = " + QuotedStr(xGridName),
        },
        u"NEW"_s);
    gData->vel_ExecSQL(1);
}

void sfvel_ExportExcell(const RowGrid& xGrid, const QString& xName) {
    const QString file =
        velcro::seat::nativePath(gEXEPath + u"Temp"_s + xName + u'-' + sfg_TempFileName()) +
        u".xlsx"_s;
    try {
        if (velcro::ui::writeWorkbook(xGrid, xName, file) && QFileInfo::exists(file)) {
            velcro::seat::openWithDesktop(file);
        }
    } catch (const velcro::ui::WorkbookError& error) {
        throw VelmaraError(u"The grid could not be exported to %1: %2."_s.arg(
            file, QString::fromUtf8(error.what())));
    }
}
