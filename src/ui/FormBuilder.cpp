#include "ui/FormBuilder.h"

#include "ui/AmountEdit.h"
#include "ui/DateEdit.h"
#include "ui/Handler.h"
#include "ui/Icons.h"
#include "ui/Theme.h"
#include "ui/Toggle.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <QValidator>

#include <algorithm>
#include <map>

namespace velcro::ui {

namespace {

constexpr int spacing = 6;
constexpr int margin = 10;
constexpr int frameWidth = 20; // of an edit, left and right of its letters
constexpr int arrowWidth = 36;
constexpr int narrowestEdit = 10; // letters
constexpr int amountLetters = 14;
constexpr int narrowestMemo = 24;

/// Corrects what goes into an edit, typed or pasted.
class Letters : public QValidator
{
public:
    Letters(bool upperCase, QObject* parent)
        : QValidator(parent)
        , upperCase_(upperCase) {}

    State validate(QString& input, int& position) const override {
        dropHalves(input, position);
        if (upperCase_) {
            // Letter by letter, so that the text keeps its length ("ß" stays).
            std::transform(input.cbegin(), input.cend(), input.begin(),
                           [](QChar letter) { return letter.toUpper(); });
        }
        return Acceptable;
    }

private:
    // The limit of an edit counts units of UTF-16 and can cut a letter in two. A half cannot be
    // stored, and would come back as another letter.
    static void dropHalves(QString& input, int& position) {
        for (qsizetype i = input.size(); i-- > 0;) {
            const bool whole =
                input[i].isHighSurrogate() && i + 1 < input.size() && input[i + 1].isLowSurrogate();
            const bool tail = input[i].isLowSurrogate() && i > 0 && input[i - 1].isHighSurrogate();
            if (input[i].isSurrogate() && !whole && !tail) {
                input.remove(i, 1);
                position -= position > i ? 1 : 0;
            }
        }
    }

    bool upperCase_;
};

int widthOf(const QWidget& widget, int letters) {
    return widget.fontMetrics().averageCharWidth() * letters + frameWidth;
}

/// As wide as it wants to be where there is room, and narrower on a small screen.
template <typename Control>
class Yielding : public Control
{
public:
    using Control::Control;

    void setWidths(int narrowest, int wanted) {
        this->setMinimumWidth(std::min(narrowest, wanted));
        this->setMaximumWidth(wanted);
        wanted_ = wanted;
    }
    QSize sizeHint() const override { return {wanted_, Control::sizeHint().height()}; }

private:
    int wanted_ = 0;
};

/// A long text shows its beginning while nobody works in it.
class TextEdit : public Yielding<QLineEdit>
{
public:
    TextEdit() {
        QObject::connect(this, &QLineEdit::textChanged, this, [this] {
            // Not hasFocus(): letters also come while the keyboard on the screen is the active window.
            if (window()->focusWidget() != this) {
                home(false);
            }
        });
    }

protected:
    // Sent here by the program, the user goes on where the text ends. Tab selects it all.
    void focusInEvent(QFocusEvent* event) override {
        QLineEdit::focusInEvent(event);
        if (event->reason() == Qt::OtherFocusReason) {
            end(false);
        }
    }
    void focusOutEvent(QFocusEvent* event) override {
        QLineEdit::focusOutEvent(event);
        // A menu or another program takes the focus for a while only.
        if (event->reason() != Qt::PopupFocusReason &&
            event->reason() != Qt::ActiveWindowFocusReason) {
            home(false);
        }
    }
};

/// Esc in an open list is the list's, and no shortcut of the form below.
class OwnEscape : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ShortcutOverride &&
            static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            event->accept();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }
};

// "Order Date:" and "&Search" are spoken without their marks.
QString spoken(const QString& label) {
    QString name = label;
    name.remove(QLatin1Char('&')).remove(QLatin1Char(':'));
    return name.simplified();
}

} // namespace

void bringForward(QWidget& control) {
    for (QWidget* page = &control; page->parentWidget() != nullptr; page = page->parentWidget()) {
        auto* stack = qobject_cast<QStackedWidget*>(page->parentWidget());
        auto* pager = stack != nullptr ? qobject_cast<QTabWidget*>(stack->parentWidget()) : nullptr;
        if (pager != nullptr) {
            pager->setCurrentWidget(page);
        }
    }
}

FormBuilder::FormBuilder(QWidget* page) {
    newRows(page);
}

void FormBuilder::newRows(QWidget* page) {
    page_ = page;
    rows_ = new QVBoxLayout(page);
    rows_->setContentsMargins(margin, margin, margin, margin);
    rows_->setSpacing(spacing);
    filled_ = false;
    endGroup();
}

void FormBuilder::endGroup() {
    shareRoom();
    groups_ = nullptr;
    owner_ = nullptr;
    grid_ = nullptr;
    beside_ = false;
}

QWidget* FormBuilder::page(const QString& name, const QString& caption) {
    if (pager_ == nullptr) {
        pager_ = new QTabWidget(page_);
        pager_->setObjectName(QStringLiteral("MainPager"));
        pager_->setAccessibleName(QStringLiteral("Pages"));
        rows_->addWidget(pager_, 1);
    } else {
        endPage();
    }
    auto* page = new QWidget;
    page->setObjectName(name);
    pager_->addTab(page, caption);
    pager_->setTabToolTip(pager_->indexOf(page), QStringLiteral("Ctrl+Tab turns to the next page"));
    newRows(page);
    return page;
}

QGroupBox* FormBuilder::group(const QString& title) {
    return addGroup(title, false);
}

QGroupBox* FormBuilder::groupBeside(const QString& title) {
    return addGroup(title, true);
}

QGroupBox* FormBuilder::addGroup(const QString& title, bool besideLast) {
    if (!besideLast || groups_ == nullptr) {
        groups_ = new QHBoxLayout;
        rows_->addLayout(groups_);
    }
    auto* box = new QGroupBox(title, page_);
    box->setAccessibleName(spoken(title));
    groups_->addWidget(box, 1);
    newGrid(box);
    return box;
}

void FormBuilder::newGrid(QWidget* owner) {
    shareRoom();
    owner_ = owner;
    grid_ = new QGridLayout(owner);
    grid_->setContentsMargins(margin, margin, margin, margin);
    grid_->setHorizontalSpacing(margin);
    grid_->setVerticalSpacing(spacing);
    framed_ = true;
    row_ = 0;
    column_ = 0;
    beside_ = false;
}

FormBuilder& FormBuilder::beside() {
    beside_ = true;
    return *this;
}

void FormBuilder::place(QWidget* widget, const QString& label) {
    if (grid_ == nullptr) {
        auto* plain = new QWidget(page_);
        rows_->addWidget(plain);
        newGrid(plain);
        widget->setParent(plain);
        framed_ = false;
    }
    if (beside_) {
        column_ += 2;
    } else {
        row_ = grid_->rowCount();
        column_ = 0;
    }
    beside_ = false;
    if (label.isEmpty()) {
        grid_->addWidget(widget, row_, column_, 1, 2);
    } else {
        auto* text = new QLabel(label, owner_);
        text->setBuddy(widget);
        grid_->addWidget(text, row_, column_);
        labels_.push_back({text, grid_, column_});
        grid_->addWidget(widget, row_, column_ + 1, Qt::AlignLeft);
    }
    // What is left of the row goes behind its last control.
    for (int i = 0; i < grid_->columnCount(); ++i) {
        grid_->setColumnStretch(i, i % 2);
    }
}

// Groups below each other share their room alike, so that their columns stand in line. Elsewhere
// controls stand close together, and one that stands alone has its row.
void FormBuilder::shareRoom() {
    if (grid_ == nullptr || framed_) {
        return;
    }
    const int columns = grid_->columnCount();
    for (int i = 1; i < columns; i += 2) {
        grid_->setColumnStretch(i, 0);
    }
    grid_->setColumnStretch(columns, 1);
    for (int row = 0; row < grid_->rowCount(); ++row) {
        auto* item = grid_->itemAtPosition(row, 1);
        const bool alone = grid_->itemAtPosition(row, 3) == nullptr;
        if (alone && item != nullptr && item->widget() != nullptr &&
            item != grid_->itemAtPosition(row, 0)) {
            auto* widget = item->widget();
            grid_->removeWidget(widget);
            grid_->addWidget(widget, row, 1, 1, columns, Qt::AlignLeft);
        }
    }
}

void FormBuilder::control(QWidget* widget, const QString& name, const QString& label) {
    widget->setObjectName(name);
    if (!label.isEmpty()) {
        widget->setAccessibleName(spoken(label));
    }
    if (widget->parentWidget() == nullptr) {
        widget->setParent(owner_ != nullptr ? owner_ : page_);
    }
    place(widget, label);
}

QLineEdit* FormBuilder::edit(const QString& name, const QString& label,
                             const EditOptions& options) {
    auto* edit = new TextEdit;
    edit->setWidths(widthOf(*edit, narrowestEdit), widthOf(*edit, options.width));
    edit->setPlaceholderText(options.emptyText);
    edit->setReadOnly(options.readOnly);
    if (options.readOnly) {
        edit->setFocusPolicy(Qt::ClickFocus); // read and copied, not passed through
    }
    if (options.limit > 0) {
        edit->setMaxLength(options.limit);
    }
    edit->setValidator(new Letters(options.upperCase, edit));
    if (options.password) {
        edit->setEchoMode(QLineEdit::Password);
    }
    control(edit, name, label);
    return edit;
}

DateEdit* FormBuilder::date(const QString& name, const QString& label) {
    auto* edit = new DateEdit;
    edit->setFixedWidth(widthOf(*edit, 11));
    control(edit, name, label);
    auto* button = buttonAfter(edit, QStringLiteral("btn") + name.mid(2),
                               edit->accessibleName() + QStringLiteral(" calendar"),
                               QStringLiteral("calendar"));
    connectHandler(button, &QToolButton::clicked, edit, &DateEdit::pickDate);
    return edit;
}

QComboBox* FormBuilder::combo(const QString& name, const QString& label, const QStringList& entries,
                              int width) {
    auto* combo = new Yielding<QComboBox>;
    combo->addItems(entries);
    combo->setItemDelegate(new QStyledItemDelegate(combo)); // takes heights from the style sheet
    combo->view()->installEventFilter(new OwnEscape(combo));
    combo->setWidths(widthOf(*combo, narrowestEdit) + arrowWidth,
                     widthOf(*combo, width) + arrowWidth);
    control(combo, name, label);
    return combo;
}

AmountEdit* FormBuilder::amount(const QString& name, const QString& label, int decimals,
                                bool readOnly) {
    auto* edit = new Yielding<AmountEdit>(decimals);
    edit->setWidths(widthOf(*edit, narrowestEdit), widthOf(*edit, amountLetters));
    edit->setReadOnly(readOnly);
    if (readOnly) {
        edit->setFocusPolicy(Qt::ClickFocus);
    }
    control(edit, name, label);
    return edit;
}

Toggle* FormBuilder::toggle(const QString& name, const QString& label, const QString& onCaption,
                            const QString& offCaption) {
    auto* toggle = new Toggle(onCaption, offCaption);
    control(toggle, name, label);
    return toggle;
}

QPlainTextEdit* FormBuilder::memo(const QString& name, const QString& label, int lines, int width) {
    auto* memo = new Yielding<QPlainTextEdit>;
    memo->setTabChangesFocus(true);
    memo->setWidths(widthOf(*memo, narrowestMemo), widthOf(*memo, width));
    memo->setFixedHeight(memo->fontMetrics().lineSpacing() * lines + frameWidth);
    control(memo, name, label);
    return memo;
}

QCheckBox* FormBuilder::check(const QString& name, const QString& caption) {
    auto* check = new QCheckBox(caption);
    check->setMinimumHeight(touchHeight);
    check->setAccessibleName(spoken(caption));
    control(check, name, {});
    return check;
}

QLabel* FormBuilder::value(const QString& name, const QString& label, const QString& text) {
    auto* value = new QLabel(text);
    value->setTextFormat(Qt::PlainText);
    control(value, name, label);
    return value;
}

QLabel* FormBuilder::note(const QString& text) {
    auto* note = new QLabel(text, page_);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    note->setProperty("role", "note");
    rows_->addWidget(note);
    endGroup();
    return note;
}

void FormBuilder::fill(QWidget* widget, const QString& name, const QString& accessibleName) {
    widget->setObjectName(name);
    widget->setAccessibleName(accessibleName);
    rows_->addWidget(widget, 1);
    endGroup();
    filled_ = true;
}

QToolButton* FormBuilder::buttonAfter(QLineEdit* edit, const QString& name,
                                      const QString& accessibleName, const QString& iconName) {
    auto* button = new QToolButton(owner_);
    button->setObjectName(name);
    button->setAccessibleName(accessibleName);
    button->setToolTip(accessibleName);
    button->setIcon(icon(iconName));
    button->setIconSize(QSize(22, 22));
    button->setFixedSize(touchHeight, touchHeight);
    // The keyboard has its own way to it, and Tab goes from edit to edit.
    button->setFocusPolicy(Qt::NoFocus);
    auto* pair = new QHBoxLayout;
    pair->setSpacing(2);
    int row = 0;
    int column = 0;
    int rowSpan = 0;
    int columnSpan = 0;
    grid_->getItemPosition(grid_->indexOf(edit), &row, &column, &rowSpan, &columnSpan);
    grid_->removeWidget(edit);
    pair->addWidget(edit);
    pair->addWidget(button);
    pair->addStretch(1);
    grid_->addLayout(pair, row, column);
    return button;
}

QToolButton* FormBuilder::browseButton(QLineEdit* edit) {
    return buttonAfter(edit, QStringLiteral("btn") + edit->objectName().mid(2),
                       QStringLiteral("Browse ") + edit->accessibleName(),
                       QStringLiteral("search"));
}

void FormBuilder::markRequired(QWidget* control) {
    for (const auto& [label, grid, column] : labels_) {
        if (label->buddy() == control) {
            label->setText(label->text() + QStringLiteral(" *"));
            label->setToolTip(QStringLiteral("Must be filled"));
        }
    }
    control->setAccessibleDescription(QStringLiteral("Must be filled"));
}

// The controls of groups below each other begin at one line.
void FormBuilder::alignLabels() {
    std::map<int, int> widest;
    for (const auto& [label, grid, column] : labels_) {
        label->ensurePolished();
        widest[column] = std::max(widest[column], label->sizeHint().width());
    }
    for (const auto& [label, grid, column] : labels_) {
        grid->setColumnMinimumWidth(column, widest[column]);
    }
}

void FormBuilder::endPage() {
    if (!filled_) {
        rows_->addStretch(1);
    }
}

void FormBuilder::stretch() {
    shareRoom();
    alignLabels();
    endPage();
}

} // namespace velcro::ui
