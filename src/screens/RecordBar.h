// The bar below a list: first, previous, next and last, and what the list shows. Where there is no
// room for words the buttons have symbols, and in a narrow bar the text gets a line of its own.
#pragma once

#include "ui/KeyButton.h"

#include <vector>

class QBoxLayout;
class QLabel;

namespace velcro::ui {
class RowGrid;
}

class RecordBar : public QWidget
{
    Q_OBJECT

public:
    /// The buttons move in the grid; the control stands at the right end.
    RecordBar(QWidget& form, velcro::ui::RowGrid& grid, QWidget* control);

    void setText(const QString& text);

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    enum class Form { Words, Symbols, TwoLines };

    struct Step
    {
        velcro::ui::KeyButton* button;
        QString caption;
        QString picture;
    };

    void measure();
    void arrange();
    Form formFor(int width) const;
    void show(Form form);
    void showWords(bool words);
    int restWidth() const;

    std::vector<Step> steps_;
    QString text_;
    Form form_ = Form::Words;
    QBoxLayout* lines_ = nullptr;
    QBoxLayout* row_ = nullptr;
    QBoxLayout* above_ = nullptr; // the first of two lines
    QLabel* label_ = nullptr;
    QWidget* control_;
    int widthOfWords_ = 0;
    int widthOfSymbols_ = 0;
};
