// Linked item selection: picks one of the packs of a parent product.
#pragma once

#include "lookups/LinkedItems.h"

class TfrmCRO921 : public LinkedItems
{
    Q_OBJECT

public:
    explicit TfrmCRO921(QWidget* parent = nullptr);

protected:
    QStringList statementLines(const QString& xSQL) const override;
};
