// The message dialogs.
#include "Steps.h"

#include "data/Prompts.h"
#include "data/Session.h"
#include "screens/SysFuncGlobal.h"

#include <utility>

namespace {

void addMessage(Tour& tour, const QString& text, const QString& title, const QString& name,
                Tour::Step show) {
    tour.then(text, [&tour, title, name, show = std::move(show)] {
        tour.expect(title, name, [&tour] { tour.press(Qt::Key_Return); });
        show();
    });
}

} // namespace

void addDialogs(Tour& tour) {
    addMessage(tour, QStringLiteral("An information."),
               QStringLiteral("System  Information Message"), QStringLiteral("information"),
               [] { sfg_InfoDlg("Repair order R000123 was saved.", 0); });
    addMessage(tour, QStringLiteral("A message."), QStringLiteral("System Message"),
               QStringLiteral("message"),
               [] { sfg_MessageDlg("The grid was restored to its first layout.", 0); });
    addMessage(tour, QStringLiteral("A warning."), QStringLiteral("System Warning"),
               QStringLiteral("warning"), [] {
                   sfg_WarningDlg("The item has no warranty date. It will be repaired at the "
                                  "customer's cost.",
                                  0);
               });
    addMessage(tour, QStringLiteral("A right that the user lacks."),
               QStringLiteral("Security Access"), QStringLiteral("access"),
               [] { sfg_AccessDlg("CRO [12]", "SysFuncVelmara", "sfvel_CheckUserAccess", 0); });
    addMessage(tour, QStringLiteral("An error."), QStringLiteral("System Error"),
               QStringLiteral("error"), [] {
                   sfg_ErrorDlg("100-001",
                                "SQL Error reading object \"CRORepMst\". Details: \rInvalid object "
                                "name 'CRORepMst'.",
                                "CRO100", "BuildGrid");
               });
    addMessage(tour, QStringLiteral("An error with something to suggest."),
               QStringLiteral("System Error"), QStringLiteral("error-with-suggestion"), [] {
                   gErrorComment = "Ask the supervisor to open the accounting period, then try "
                                   "again.";
                   sfg_ErrorDlg("200-014", "The accounting period is closed.", "CRO100A",
                                "Validation");
               });
}
