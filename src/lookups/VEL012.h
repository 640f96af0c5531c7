// Linked item selection of the stock search: what the user typed or scanned is a parent, and one of
// its packs is wanted.
#pragma once

#include "lookups/LinkedItems.h"

class TfrmVEL012 : public LinkedItems
{
    Q_OBJECT

public:
    explicit TfrmVEL012(QWidget* parent = nullptr);

protected:
    QStringList statementLines(const QString& xSQL) const override;
    void afterRead() override;
    void nothingToPick() override;
};
