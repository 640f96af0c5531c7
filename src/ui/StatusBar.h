// The bar at the foot of a screen: panels that show their own text, and panels that the program
// draws.
#pragma once

#include <QWidget>

#include <functional>
#include <vector>

namespace velcro::ui {

enum PanelStyle {
    psHTML,      // the panel's own text
    psText,      // the panel's own text; as second panel it moves the message panels up by one
    psOwnerDraw, // the panel drawer paints it
};

class StatusBar : public QWidget
{
    Q_OBJECT

public:
    /// Paints the inside of an owner-drawn panel.
    using PanelDrawer =
        std::function<void(StatusBar& bar, QPainter& painter, int panel, const QRect& rect)>;

    explicit StatusBar(QWidget* parent = nullptr);

    /// Width 0 fits the text; -1 takes what is left (the last such panel grows).
    int addPanel(PanelStyle style, const QString& text = {}, int width = 0);
    int panelCount() const { return static_cast<int>(panels_.size()); }

    PanelStyle panelStyle(int panel) const { return panels_.at(panel).style; }
    void setPanelStyle(int panel, PanelStyle style);
    QString panelText(int panel) const { return panels_.at(panel).text; }
    void setPanelText(int panel, const QString& text);
    QRect panelRect(int panel) const;
    /// Pixels that the texts of all panels take side by side, with the room around each.
    int textWidth() const;

    /// What an owner-drawn panel says, for screen readers: drawing is silent.
    void setSpokenText(int panel, const QString& text);
    QString spokenText(int panel) const;

    void setPanelDrawer(PanelDrawer drawer) { drawer_ = std::move(drawer); }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Panel
    {
        PanelStyle style;
        QString text;
        QString spoken;
        int width;
    };

    void speak();

    std::vector<Panel> panels_;
    PanelDrawer drawer_;
};

} // namespace velcro::ui
