#include "workshop/CRO002.h"

using namespace Qt::Literals::StringLiterals;

TfrmCRO002::TfrmCRO002(QWidget* parent)
    : CodeTableWith({.unit = u"CRO002"_s,
                     .caption = u"Workshop Centre: Technicians Management"_s,
                     .errorNo = u"002-001"_s,
                     .table = "CROTechMst",
                     .orderBy = "TechCode",
                     .columns = {{"TechCode", "Technician Code"},
                                 {"TechName", "Technician Name"},
                                 {"Cellphone"}},
                     .addCaption = u"New* Technician"_s,
                     .updateCaption = u"Edit Technician"_s,
                     .deleteCaption = u"Remove Technician"_s},
                    parent) {}
