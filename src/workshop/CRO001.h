// The workshop's system codes: lists the intakes, faults and statuses of the company.
#pragma once

#include "workshop/CRO001A.h"
#include "workshop/CodeTable.h"

class TfrmCRO001 : public CodeTableWith<TfrmCRO001A>
{
public:
    explicit TfrmCRO001(QWidget* parent = nullptr);
};
