// ALTER TABLE.
#include "tsql/syntax/Descent.h"

namespace velcro::sql::tsql {

// alter table := TABLE object (ALTER COLUMN ... | DROP ... | [WITH (CHECK | NOCHECK)] ADD ...
//              | (CHECK | NOCHECK) CONSTRAINT ...)
AlterTable Descent::alterTable() {
    AlterTable result;
    in_.expect(Keyword::Table);
    result.table = objectName();
    if (in_.accept(Keyword::Alter)) {
        in_.expect(Keyword::Column);
        result.action = alterColumn();
    } else if (in_.accept(Keyword::Drop)) {
        result.action = alterTableDrop();
    } else if ((in_.is(Keyword::Check) || in_.is(Keyword::Nocheck)) &&
               in_.isAt(1, Keyword::Constraint)) {
        result.action = alterTableCheck(in_.take().keyword == Keyword::Check);
    } else {
        if (in_.accept(Keyword::With) && !in_.accept(Keyword::Check)) {
            in_.expect(Keyword::Nocheck); // existing rows are checked on either
        }
        if (in_.is(Keyword::Check) || in_.is(Keyword::Nocheck)) {
            result.action = alterTableCheck(in_.take().keyword == Keyword::Check);
            return result;
        }
        in_.expect(Keyword::Add);
        result.action = alterTableAdd();
    }
    return result;
}

// add := elements [WITH VALUES]
AlterTableAdd Descent::alterTableAdd() {
    AlterTableAdd add;
    list([&] {
        if (atConstraint()) {
            add.constraints.push_back(constraint(true));
        } else {
            add.columns.push_back(columnDefinition());
        }
        if (in_.accept(Keyword::With)) {
            in_.expect(Keyword::Values);
            add.withValues = true;
        }
    });
    return add;
}

// alter column := name type [COLLATE name] [[NOT] NULL]
AlterTableAlterColumn Descent::alterColumn() {
    AlterTableAlterColumn result;
    result.offset = in_.offset();
    result.column = in_.expectName();
    if (in_.is(Keyword::Add) || in_.is(Keyword::Drop)) {
        in_.refuseUnsupported("ALTER COLUMN ... ADD or DROP");
    }
    result.type = dataType();
    if (in_.accept(Keyword::Collate)) {
        result.collation = in_.expectName();
    }
    if (in_.accept(Keyword::Not)) {
        in_.expect(Keyword::Null);
        result.nullable = false;
    } else if (in_.accept(Keyword::Null)) {
        result.nullable = true;
    }
    return result;
}

// drop := ([CONSTRAINT] | COLUMN) [IF EXISTS] name {',' [COLUMN | CONSTRAINT] name}
AlterTableDrop Descent::alterTableDrop() {
    AlterTableDrop result;
    bool isColumn = false;
    list([&] {
        if (in_.accept(Keyword::Column)) {
            isColumn = true;
        } else if (in_.accept(Keyword::Constraint)) {
            isColumn = false;
        }
        AlterTableDrop::Item item;
        item.isColumn = isColumn;
        item.ifExists = ifExists();
        item.offset = in_.offset();
        item.name = in_.expectName();
        result.items.push_back(std::move(item));
    });
    return result;
}

// check := CONSTRAINT (ALL | names)
AlterTableCheck Descent::alterTableCheck(bool check) {
    AlterTableCheck result;
    result.check = check;
    in_.expect(Keyword::Constraint);
    if (!in_.accept(Keyword::All)) {
        list([&] { result.constraints.push_back(in_.expectName()); });
    }
    return result;
}

} // namespace velcro::sql::tsql
