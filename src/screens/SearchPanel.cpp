#include "screens/SearchPanel.h"

#include "ui/Handler.h"
#include "ui/Theme.h"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

using velcro::ui::connectHandler;
using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int roomToType = 120;
}

SearchPanel::SearchPanel(QWidget* form, const QList<QKeySequence>& alsoKeys)
    : QFrame(form) {
    setObjectName(u"pnlSearch"_s);
    edSearchText_ = new QLineEdit(this);
    edSearchText_->setObjectName(u"edSearchText"_s);
    edSearchText_->setAccessibleName(u"Search Text"_s);
    auto* label = new QLabel(u"Search &Text"_s, this);
    label->setBuddy(edSearchText_);
    btnSearch_ = makeButton(*form, {.name = u"btnSearch"_s,
                                    .caption = u"Search"_s,
                                    .key = Qt::CTRL | Qt::Key_S,
                                    .handler = [this] { emit searchAsked(); },
                                    .role = ButtonFacts::Role::Main,
                                    .alsoKeys = alsoKeys});
    btnSearch_->setAccessibleName(u"Search Now"_s); // another button opens the panel
    auto* close = makeButton(*form, {.name = u"btnSearchClose"_s,
                                     .caption = u"Close"_s,
                                     .handler = [this] { emit closeAsked(); },
                                     .cap = u"ESC"_s});
    close->setFocusPolicy(Qt::NoFocus); // closing is no leaving
    connectHandler(edSearchText_, &QLineEdit::returnPressed, this, [this] { emit entered(); });
    lines_ = new QBoxLayout(QBoxLayout::LeftToRight, this);
    lines_->setSpacing(2);
    text_ = new QHBoxLayout;
    text_->addWidget(label);
    text_->addWidget(edSearchText_, 1);
    auto* keyboard = makeKeyboardButton(*form);
    keyboard->setMaximumWidth(velcro::ui::touchHeight); // its symbol
    text_->addWidget(keyboard);
    buttons_ = new QHBoxLayout;
    buttons_->addWidget(btnSearch_);
    buttons_->addWidget(close);
    buttons_->addStretch();
    lines_->addLayout(text_, 1);
    lines_->addLayout(buttons_);
    hide();
}

int SearchPanel::widthOf(const QLayout& row) const {
    const auto margins = contentsMargins() + lines_->contentsMargins();
    return row.minimumSize().width() + margins.left() + margins.right();
}

QSize SearchPanel::minimumSizeHint() const {
    return {std::max(widthOf(*text_), widthOf(*buttons_)), QFrame::minimumSizeHint().height()};
}

// In a narrow list the buttons go below the text.
void SearchPanel::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    const int beside = widthOf(*text_) + buttons_->minimumSize().width() + roomToType;
    lines_->setDirection(width() < beside ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

QString SearchPanel::text() const {
    return edSearchText_->text();
}

void SearchPanel::open() {
    show();
    edSearchText_->selectAll();
    edSearchText_->setFocus();
}

void SearchPanel::watchLeaving() {
    edSearchText_->installEventFilter(this);
}

// A menu over the text and another window in front of the screen are no leaving.
bool SearchPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == edSearchText_ && event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
            reason != Qt::MenuBarFocusReason) {
            // Not while the focus is still moving.
            QMetaObject::invokeMethod(
                this, [this] { velcro::ui::guarded([this] { tellLeft(); }); },
                Qt::QueuedConnection);
        }
    }
    return QFrame::eventFilter(watched, event);
}

// A click on the search button has searched by itself and hidden the panel.
void SearchPanel::tellLeft() {
    if (isVisible() && !edSearchText_->hasFocus()) {
        emit left();
    }
}
