#include "security/FingerTemplates.h"

#include "ui/Progress.h"

TemplateSearch searchTemplates(Statement& rows,
                               const std::function<bool(const QByteArray& stored)>& isLast) {
    velcro::ui::Progress progress(QStringLiteral("Comparing fingerprints"), rows.RecordCount());
    for (; !rows.Eof(); rows.Next()) {
        if (!progress.step(rows.RecNo())) {
            return TemplateSearch::GivenUp;
        }
        if (isLast(rows.FieldByName("FPData").AsBytes())) {
            return TemplateSearch::Found;
        }
    }
    return TemplateSearch::NotFound;
}
