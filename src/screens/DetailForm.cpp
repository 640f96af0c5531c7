#include "screens/DetailForm.h"

#include "data/DateTimeText.h"
#include "data/Errors.h"
#include "data/Session.h"
#include "data/Statement.h"
#include "data/StatementText.h"
#include "data/TextHelpers.h"
#include "screens/Combos.h"
#include "ui/AmountEdit.h"
#include "ui/DateEdit.h"
#include "ui/Toggle.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using velcro::ui::AmountEdit;
using velcro::ui::FormBuilder;
using velcro::ui::Toggle;
using Kind = DetailField::Kind;

namespace {

QStringList columnsOf(const char* stated) {
    return QString::fromLatin1(stated).split(u' ', Qt::SkipEmptyParts);
}

void setFieldValue(QWidget& control, const QString& value) {
    if (auto* combo = qobject_cast<QComboBox*>(&control)) {
        if (!value.isEmpty()) {
            combo->setCurrentIndex(sfg_FindComboIndex(value, *combo, true));
        }
    } else if (auto* memo = qobject_cast<QPlainTextEdit*>(&control)) {
        memo->setPlainText(value);
    } else if (auto* toggle = qobject_cast<Toggle*>(&control)) {
        toggle->setChecked(value.compare("Y"_L1, Qt::CaseInsensitive) == 0);
    } else if (auto* amount = qobject_cast<AmountEdit*>(&control)) {
        amount->setNumber(value);
    } else if (auto* edit = qobject_cast<QLineEdit*>(&control)) {
        // What the row holds is not cut, also where less can be typed.
        edit->setMaxLength(std::max(edit->maxLength(), int(value.size())));
        edit->setText(value);
    }
}

// A code that its table has no more stays with the row: it stands among the entries, bare.
void keepCode(QComboBox& combo, const QString& code) {
    if (!code.isEmpty() && combo.currentIndex() < 0) {
        combo.addItem(code);
        combo.setCurrentIndex(combo.count() - 1);
    }
}

} // namespace

QString fieldValue(const QWidget& control) {
    if (const auto* combo = qobject_cast<const QComboBox*>(&control)) {
        return sfg_StripCode(combo->currentText(), u'-', u"Y"_s);
    }
    if (const auto* memo = qobject_cast<const QPlainTextEdit*>(&control)) {
        return memo->toPlainText();
    }
    if (const auto* toggle = qobject_cast<const Toggle*>(&control)) {
        return toggle->isChecked() ? u"Y"_s : u"N"_s;
    }
    if (const auto* amount = qobject_cast<const AmountEdit*>(&control)) {
        return amount->number();
    }
    const auto* edit = qobject_cast<const QLineEdit*>(&control);
    return edit != nullptr ? edit->text() : QString();
}

DetailForm::DetailForm(const DetailFacts& facts, QWidget* page)
    : facts_(facts) {
    FormBuilder form(page);
    for (const auto& stated : facts.fields) {
        if (auto* control = build(form, stated)) {
            fields_.push_back({&stated, control});
        }
    }
    for (const auto& check : facts.checks) {
        if (check.passes == isFilled || check.passes == isNotBlank || check.passes == isNotZero) {
            form.markRequired(&control(QString::fromLatin1(check.control)));
        }
    }
    form.stretch();
    for (const auto& column : columnsOf(facts.inserts) + columnsOf(facts.updates)) {
        if (!findValue(column) && !findField(column) && column != "CO"_L1 &&
            column != "Branch"_L1) {
            throw VelmaraError(u"Nothing gives the column "_s + column);
        }
    }
}

QWidget* DetailForm::build(FormBuilder& form, const DetailField& stated) {
    const auto& options = stated.options;
    const QString name = QString::fromLatin1(stated.name);
    if (options.beside) {
        form.beside();
    }
    switch (stated.kind) {
    case Kind::Page:
        form.page(name, stated.label);
        return nullptr;
    case Kind::Note:
        form.note(stated.label);
        return nullptr;
    case Kind::Group:
        form.group(stated.label);
        return nullptr;
    case Kind::GroupBeside:
        form.groupBeside(stated.label);
        return nullptr;
    case Kind::Date:
        return form.date(name, stated.label);
    case Kind::Amount: {
        auto* amount = form.amount(name, stated.label, options.decimals, options.readOnly);
        amount->setMaxLength(options.limit > 0 ? options.limit : amount->maxLength());
        return amount;
    }
    case Kind::Combo:
        return form.combo(name, stated.label, stated.entries, options.width);
    case Kind::Codes:
        return form.combo(name, stated.label, {}, options.width);
    case Kind::Memo:
        return form.memo(name, stated.label);
    case Kind::Toggle:
        return form.toggle(name, stated.label, stated.entries[0], stated.entries[1]);
    case Kind::Other: {
        auto* widget = stated.make();
        form.fill(widget, name, stated.label);
        return widget;
    }
    case Kind::Text:
        break;
    }
    return buildEdit(form, stated);
}

QWidget* DetailForm::buildEdit(FormBuilder& form, const DetailField& stated) {
    const auto& options = stated.options;
    auto* edit = form.edit(QString::fromLatin1(stated.name), stated.label,
                           {.width = options.width,
                            .limit = options.limit,
                            .upperCase = options.upperCase,
                            .readOnly = options.readOnly,
                            .emptyText = options.emptyText});
    if (options.browse) {
        form.browseButton(edit);
    }
    return edit;
}

QWidget& DetailForm::control(const QString& name) const {
    for (const auto& field : fields_) {
        if (field.control->objectName() == name) {
            return *field.control;
        }
    }
    throw VelmaraError(u"The screen has no control "_s + name);
}

void DetailForm::setDefaults() {
    QString today;
    for (const auto& [stated, control] : fields_) {
        if (auto* combo = qobject_cast<QComboBox*>(control)) {
            if (stated->kind == Kind::Codes) {
                sld_LoadCombo(stated->entries[0], *combo, stated->entries[1]);
            }
            combo->setCurrentIndex(0);
        }
        if (stated->options.today) {
            today = today.isEmpty() ? sfg_Date(0) : today;
            setFieldValue(*control, today);
        }
    }
}

void DetailForm::load(const Statement& row) {
    for (const auto& [stated, control] : fields_) {
        if (stated->options.loads && row.HasField(stated->column())) {
            const auto value = row.FieldByName(stated->column()).AsString();
            setFieldValue(*control, value);
            if (stated->kind == Kind::Codes) {
                keepCode(*qobject_cast<QComboBox*>(control), value);
            }
        }
    }
}

const ColumnValue* DetailForm::findValue(const QString& column) const {
    const auto found =
        std::find_if(facts_.values.begin(), facts_.values.end(), [&](const ColumnValue& stated) {
            return column == QLatin1String(stated.column);
        });
    return found != facts_.values.end() ? &*found : nullptr;
}

const DetailForm::Field* DetailForm::findField(const QString& column) const {
    const auto found = std::find_if(fields_.begin(), fields_.end(), [&](const Field& field) {
        return field.stated->column() == column;
    });
    return found != fields_.end() ? &*found : nullptr;
}

QString DetailForm::value(const QString& column) const {
    if (const auto* stated = findValue(column)) {
        return stated->value();
    }
    if (const auto* field = findField(column)) {
        return fieldValue(*field->control);
    }
    return column == "CO"_L1 ? gCO : gBranch;
}

QString DetailForm::insertText() const {
    QStringList columns = columnsOf(facts_.inserts);
    QStringList values;
    for (const auto& column : columns) {
        values << QuotedStr(value(column));
    }
    if (facts_.stamped) {
        columns << u"DTODate"_s << u"DTOTime"_s << u"DTOUser"_s << u"DTOMacID"_s;
    }
    return "INSERT INTO " + QLatin1String(facts_.table) + " ( [" + columns.join("], ["_L1) +
           "] ) VALUES ( " + values.join(u',') + (facts_.stamped ? "," + sfg_AddDTO() : u")"_s);
}

QString DetailForm::updateText(int xRecID) const {
    QStringList assignments;
    for (const auto& column : columnsOf(facts_.updates)) {
        assignments << "       [" + column + "] = " + QuotedStr(value(column));
    }
    if (facts_.stamped) {
        assignments << sfg_UpdateDTO();
    }
    return "UPDATE " + QLatin1String(facts_.table) + " SET " + assignments.join(", "_L1) +
           " WHERE [RecID] = " + QuotedStr(xRecID);
}
