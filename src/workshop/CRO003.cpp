#include "workshop/CRO003.h"

using namespace Qt::Literals::StringLiterals;

TfrmCRO003::TfrmCRO003(QWidget* parent)
    : CodeTableWith({.unit = u"CRO003"_s,
                     .caption = u"Workshop Centre: Process Codes Management"_s,
                     .errorNo = u"003-001"_s,
                     .table = "CROProcessMst",
                     .orderBy = "ProcessSeq",
                     .columns = {{"ProcessSeq", "Sequence"},
                                 {"ProcessCode", "Process Code"},
                                 {"Description"}},
                     .addCaption = u"New* Process"_s,
                     .updateCaption = u"Edit Process"_s,
                     .deleteCaption = u"Remove Process"_s},
                    parent) {}
