#include "support/DetailColumns.h"

#include "data/DataUVEL.h"
#include "data/DateTimeText.h"
#include "data/Session.h"
#include "data/Statement.h"
#include "ui/AmountEdit.h"
#include "ui/FormBuilder.h"
#include "ui/Toggle.h"

#include <QComboBox>
#include <QLineEdit>
#include <gtest/gtest.h>

namespace {

using Row = QMap<QString, QString>;

Row newestRow(const QString& table) {
    Statement query(gData->Velmara);
    query.SQL.Add("SELECT TOP(1) * FROM " + table + " ORDER BY [RecID] DESC");
    query.Open();
    Row row;
    for (int i = 0; i < int(query.rows().columnCount()); ++i) {
        row[query.Fields(i).name()] = query.Fields(i).AsString();
    }
    return row;
}

bool takesInput(const QWidget& control) {
    const auto* edit = qobject_cast<const QLineEdit*>(&control);
    return control.isEnabled() && (edit == nullptr || !edit->isReadOnly());
}

/// What the column must hold after the control shows this.
QString columnText(const QWidget& control, const QString& seen) {
    if (qobject_cast<const QComboBox*>(&control)) {
        return seen.section('-', 0, 0).trimmed();
    }
    if (qobject_cast<const velcro::ui::AmountEdit*>(&control)) {
        return QString::number(seen.toDouble(), 'g', 15);
    }
    if (const auto* toggle = qobject_cast<const velcro::ui::Toggle*>(&control)) {
        return toggle->isChecked() ? "Y" : "N";
    }
    return seen;
}

class ColumnCheck
{
public:
    ColumnCheck(ScriptedUser& user, const DetailCase& stated)
        : user_(user)
        , stated_(stated) {}

    void addAndChange() {
        work(1, 0);
        Row expected = typed_;
        const Row added = newestRow(table_);
        compare(added, expected, "after the add");
        gUserCode = "OTHER"; // who changes it is stamped as well
        work(2, added["RecID"].toInt());
        for (auto column = typed_.begin(); column != typed_.end(); ++column) {
            EXPECT_NE(column.value(), added[column.key()]) << column.key().toStdString();
            if (!stated_.keeps.contains(column.key())) {
                expected[column.key()] = column.value();
            }
        }
        compare(newestRow(table_), expected, "after the update");
    }

private:
    void work(int xFunction, int xRecID) {
        const auto screen = stated_.screen();
        screen->xFunction = xFunction;
        screen->xRecID = xRecID;
        table_ = QString::fromLatin1(screen->facts().table);
        const Row before = std::exchange(typed_, {});
        user_.workIn(*screen, [&] {
            for (const auto& field : screen->form().fields()) {
                if (xFunction == 2 && before.contains(field.stated->column())) {
                    EXPECT_EQ(columnText(*field.control, user_.sees(field.control->objectName())),
                              before[field.stated->column()])
                        << field.stated->name << " as it was loaded";
                }
                if (takesInput(*field.control) && field.stated->kind != DetailField::Kind::Other) {
                    typed_[field.stated->column()] = type(field, xFunction);
                }
            }
            user_.press(Qt::Key_F10);
        });
    }
    QString type(const DetailForm::Field& field, int round) {
        const QString name = field.control->objectName();
        velcro::ui::bringForward(*field.control);
        if (qobject_cast<QComboBox*>(field.control)) {
            field.control->setFocus();
            user_.press(round == 1 ? Qt::Key_End : Qt::Key_Home);
        } else if (qobject_cast<velcro::ui::Toggle*>(field.control)) {
            field.control->setFocus();
            user_.press(Qt::Key_Space);
        } else {
            const auto own = QString::number(round) + field.stated->column();
            const auto given = stated_.typed.value(name, {own, own});
            user_.typeInto(name, round == 1 ? given.first : given.second);
            if (qobject_cast<velcro::ui::AmountEdit*>(field.control) ||
                field.stated->options.browse) {
                user_.press(Qt::Key_Tab); // rounds, and looks up
            }
        }
        return columnText(*field.control, user_.sees(name));
    }
    void compare(const Row& row, Row expected, const char* when) const {
        expected.insert(stated_.others);
        expected.insert({{"RecID", row["RecID"]},
                         {"CO", gCO},
                         {"DTODate", sfg_Date(0)},
                         {"DTOTime", row["DTOTime"]},
                         {"DTOUser", gUserCode},
                         {"DTOMacID", gPCName}});
        for (auto column = row.begin(); column != row.end(); ++column) {
            EXPECT_TRUE(expected.contains(column.key()))
                << "nobody looks at the column " << column.key().toStdString();
            EXPECT_EQ(column.value().toStdString(), expected[column.key()].toStdString())
                << column.key().toStdString() << " " << when;
        }
        for (const auto& column : typed_.keys()) {
            EXPECT_TRUE(row.contains(column)) << "no column " << column.toStdString();
        }
    }

    ScriptedUser& user_;
    const DetailCase& stated_;
    QString table_;
    Row typed_; // by column, as it was shown
};

} // namespace

void expectEveryColumnIsKept(ScriptedUser& user, const DetailCase& stated) {
    ColumnCheck(user, stated).addAndChange();
}
