#include "workshop/CRO001.h"

#include <QMap>

using namespace Qt::Literals::StringLiterals;

namespace {

QString codeTypeText(const QString& stored) {
    static const QMap<QString, QString> texts = {
        {u"F"_s, u"FAULTS"_s}, {u"I"_s, u"INTAKES"_s}, {u"S"_s, u"STATUSES"_s}};
    return texts.value(stored.toUpper(), stored);
}

} // namespace

TfrmCRO001::TfrmCRO001(QWidget* parent)
    : CodeTableWith({.unit = u"CRO001"_s,
                     .caption = u"Workshop Centre: System Codes Management"_s,
                     .errorNo = u"001-001"_s,
                     .table = "CROCodeMaster",
                     .orderBy = "Code",
                     .columns = {{"CodeType", "Code Type", codeTypeText},
                                 {"Code", "System Code"},
                                 {"Description"},
                                 {"Notes"}},
                     .addCaption = u"    New*    Code"_s,
                     .updateCaption = u"     Edit      Code"_s,
                     .deleteCaption = u"Remove Code"_s},
                    parent) {}
