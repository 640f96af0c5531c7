// Remembers beside the database which table has been made but has no primary key yet. The two are
// sent one after the other, and a table that is there is never given a key again: a program that
// ends between them would leave it without one for good.
#pragma once

#include <QString>

namespace velcro::schema {

class UnfinishedTable
{
public:
    UnfinishedTable(const QString& table, const QString& keyStatement);
    ~UnfinishedTable();
    UnfinishedTable(const UnfinishedTable&) = delete;
    UnfinishedTable& operator=(const UnfinishedTable&) = delete;

    /// Sends the key that a sweep of this till, cut off on this seat, has left out.
    static void finish();

private:
    QString path_;
};

} // namespace velcro::schema
