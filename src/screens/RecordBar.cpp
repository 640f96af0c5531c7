#include "screens/RecordBar.h"

#include "screens/Buttons.h"
#include "ui/Icons.h"
#include "ui/RowGrid.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>

#include <algorithm>
#include <functional>
#include <tuple>

using velcro::ui::RowGrid;
using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int gap = 8;
constexpr QSize symbol(20, 20);
} // namespace

RecordBar::RecordBar(QWidget& form, RowGrid& grid, QWidget* control)
    : QWidget(&form)
    , control_(control) {
    lines_ = new QVBoxLayout(this);
    lines_->setContentsMargins(0, 0, 0, 0);
    lines_->setSpacing(gap / 4);
    row_ = new QHBoxLayout;
    row_->setSpacing(gap);
    lines_->addLayout(row_);
    using Go = void (RowGrid::*)();
    const std::tuple<QString, QString, QString, Go> steps[] = {
        {u"btnFirst"_s, u"First"_s, u"first"_s, &RowGrid::first},
        {u"btnPrev"_s, u"Previous"_s, u"prev"_s, &RowGrid::previous},
        {u"btnNext"_s, u"Next"_s, u"next"_s, &RowGrid::next},
        {u"btnLast"_s, u"Last"_s, u"last"_s, &RowGrid::last},
    };
    for (const auto& [name, caption, picture, go] : steps) {
        auto* button = makeButton(form, {.name = name,
                                         .caption = caption,
                                         .handler = std::bind_front(go, &grid),
                                         .hint = caption});
        button->setIconSize(symbol);
        row_->addWidget(button);
        steps_.push_back({button, caption, picture});
    }
    row_->addStretch(1);
    above_ = new QHBoxLayout;
    above_->setSpacing(gap);
    lines_->insertLayout(0, above_);
    label_ = new QLabel(this);
    label_->setObjectName(u"lblRowCount"_s);
    row_->addWidget(label_);
    row_->addWidget(control_);
    measure();
}

void RecordBar::setText(const QString& text) {
    text_ = text;
    arrange();
}

void RecordBar::showWords(bool words) {
    for (const auto& [button, caption, picture] : steps_) {
        button->setText(words ? caption : QString());
        button->setIcon(words ? QIcon() : velcro::ui::icon(picture));
    }
}

void RecordBar::measure() {
    const auto width = [this](bool words) {
        showWords(words);
        int all = 0;
        for (const auto& step : steps_) {
            all += step.button->sizeHint().width() + gap;
        }
        return all;
    };
    widthOfWords_ = width(true);
    widthOfSymbols_ = width(false);
    showWords(form_ == Form::Words);
}

int RecordBar::restWidth() const {
    const int width = std::max(control_->sizeHint().width(), control_->minimumWidth());
    return control_->isHidden() ? 0 : width + gap;
}

RecordBar::Form RecordBar::formFor(int width) const {
    const int rest = label_->fontMetrics().horizontalAdvance(text_) + 2 * gap + restWidth();
    if (widthOfWords_ + rest <= width) {
        return Form::Words;
    }
    return widthOfSymbols_ + rest <= width ? Form::Symbols : Form::TwoLines;
}

void RecordBar::show(Form form) {
    if (form == form_) {
        return;
    }
    form_ = form;
    showWords(form == Form::Words);
    auto* line = form == Form::TwoLines ? above_ : row_;
    line->addWidget(label_, form == Form::TwoLines ? 1 : 0);
    line->addWidget(control_);
}

void RecordBar::arrange() {
    show(formFor(width()));
    const bool alone = form_ == Form::TwoLines;
    label_->setText(
        alone ? label_->fontMetrics().elidedText(text_, Qt::ElideRight, width() - restWidth())
              : text_);
    label_->setToolTip(label_->text() == text_ ? QString() : text_);
}

QSize RecordBar::minimumSizeHint() const {
    return {widthOfSymbols_, QWidget::minimumSizeHint().height()};
}

void RecordBar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
}

void RecordBar::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        measure();
        arrange();
    }
}
