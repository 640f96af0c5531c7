// The workshop's process codes: lists the steps of the work in their order.
#pragma once

#include "workshop/CRO003A.h"
#include "workshop/CodeTable.h"

class TfrmCRO003 : public CodeTableWith<TfrmCRO003A>
{
public:
    explicit TfrmCRO003(QWidget* parent = nullptr);
};
