// The tables in which the catalogue is kept, readable by any SQLite tool beside the data.
#pragma once

#include <string_view>

namespace velcro::sql::tsql {

// max_length, precision and scale are what the catalogue views report of a type; length is its own
// measure.
inline constexpr std::string_view catalogueTables = R"sql(
CREATE TABLE "sys$version"(
    version INTEGER NOT NULL
);
CREATE TABLE "sys$objects"(
    object_id INTEGER PRIMARY KEY,
    name TEXT NOT NULL COLLATE SQL_CI_AS,
    type TEXT NOT NULL,
    parent INTEGER NOT NULL,
    definition TEXT,
    created TEXT NOT NULL,
    modified TEXT NOT NULL
);
CREATE UNIQUE INDEX "sys$objects.name" ON "sys$objects"(name);
CREATE INDEX "sys$objects.parent" ON "sys$objects"(parent);
CREATE TABLE "sys$columns"(
    object_id INTEGER NOT NULL,
    position INTEGER NOT NULL,
    column_id INTEGER NOT NULL,
    name TEXT NOT NULL COLLATE SQL_CI_AS,
    type TEXT NOT NULL,
    length INTEGER NOT NULL,
    system_type_id INTEGER NOT NULL,
    max_length INTEGER NOT NULL,
    precision INTEGER NOT NULL,
    scale INTEGER NOT NULL,
    nullable INTEGER NOT NULL,
    seed INTEGER,
    increment INTEGER,
    default_id INTEGER,
    default_sqlite TEXT,
    default_system_named INTEGER,
    PRIMARY KEY(object_id, position)
) WITHOUT ROWID;
CREATE TABLE "sys$indexes"(
    object_id INTEGER NOT NULL,
    index_id INTEGER NOT NULL,
    name TEXT NOT NULL COLLATE SQL_CI_AS,
    constraint_id INTEGER NOT NULL,
    is_primary_key INTEGER NOT NULL,
    is_unique INTEGER NOT NULL,
    is_clustered INTEGER NOT NULL,
    PRIMARY KEY(object_id, index_id)
) WITHOUT ROWID;
CREATE INDEX "sys$indexes.name" ON "sys$indexes"(name);
CREATE TABLE "sys$index_columns"(
    object_id INTEGER NOT NULL,
    index_id INTEGER NOT NULL,
    index_column_id INTEGER NOT NULL,
    column_id INTEGER NOT NULL,
    key_ordinal INTEGER NOT NULL,
    is_descending INTEGER NOT NULL,
    is_included INTEGER NOT NULL,
    PRIMARY KEY(object_id, index_id, index_column_id)
) WITHOUT ROWID;
INSERT INTO "sys$version" VALUES (1);
)sql";

} // namespace velcro::sql::tsql
