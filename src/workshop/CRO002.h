// The workshop's technicians: lists who works on articles, by technician code.
#pragma once

#include "workshop/CRO002A.h"
#include "workshop/CodeTable.h"

class TfrmCRO002 : public CodeTableWith<TfrmCRO002A>
{
public:
    explicit TfrmCRO002(QWidget* parent = nullptr);
};
