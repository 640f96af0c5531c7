// Pages before they are printed: leafed through, looked at closely, printed or kept as a PDF file.
#pragma once

#include <QDialog>
#include <QString>

#include <functional>
#include <memory>

class ButtonPanel;
class QLabel;
class QPrinter;
class QPrintPreviewWidget;

class PrintPreview : public QDialog
{
    Q_OBJECT

public:
    /// Fills the pages of a printer, or of a file.
    using Pages = std::function<void(QPrinter& paper)>;

    /// name: of the file that is offered.
    PrintPreview(QString name, Pages pages, QWidget* parent);
    ~PrintPreview() override;

private:
    void makeButtons(ButtonPanel& panel);
    void goTo(int page);
    void showPlace();
    void print();
    void keepFile();
    void writeFile(const QString& path);

    QString name_;
    Pages pages_;
    std::unique_ptr<QPrinter> printer_;
    QPrintPreviewWidget* preview_ = nullptr;
    QLabel* lblPage_ = nullptr;
};
