// The panel that drops in above a list: a text to search for, and what runs the search.
#pragma once

#include "screens/Buttons.h"

#include <QFrame>

class QBoxLayout;
class QLineEdit;

class SearchPanel : public QFrame
{
    Q_OBJECT

public:
    /// The keys run the search also while the panel is hidden, with the text it had.
    SearchPanel(QWidget* form, const QList<QKeySequence>& alsoKeys);

    QString text() const;
    /// Shows the panel, ready to type over what was searched for last.
    void open();
    /// Leaving the text is a signal of its own; without this it is none.
    void watchLeaving();

    QSize minimumSizeHint() const override;

signals:
    void searchAsked();
    void entered(); // Enter in the text
    /// The text was left, however it was, while the panel stayed open.
    void left();
    void closeAsked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void tellLeft();
    int widthOf(const QLayout& row) const;

    QLineEdit* edSearchText_ = nullptr;
    velcro::ui::KeyButton* btnSearch_ = nullptr;
    QBoxLayout* lines_ = nullptr;
    QBoxLayout* text_ = nullptr;
    QBoxLayout* buttons_ = nullptr;
};
