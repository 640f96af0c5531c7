#include "screens/PrintPreview.h"

#include "data/Errors.h"
#include "screens/ButtonPanel.h"
#include "ui/Handler.h"
#include "ui/Modal.h"

#include <QAbstractScrollArea>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <algorithm>

using velcro::ui::connectHandler;
using namespace Qt::Literals::StringLiterals;

PrintPreview::PrintPreview(QString name, Pages pages, QWidget* parent)
    : QDialog(parent)
    , name_(std::move(name))
    , pages_(std::move(pages))
    , printer_(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
    setObjectName(u"PrintPreview"_s);
    setWindowTitle(u"Print Preview"_s);
    printer_->setPageOrientation(QPageLayout::Landscape);
    preview_ = new QPrintPreviewWidget(printer_.get(), this);
    for (auto* sheet : preview_->findChildren<QAbstractScrollArea*>()) {
        sheet->setAccessibleName(u"Pages"_s);
    }
    connectHandler(preview_, &QPrintPreviewWidget::paintRequested, this,
                   [this](QPrinter* paper) { pages_(*paper); });
    connectHandler(preview_, &QPrintPreviewWidget::previewChanged, this, [this] { showPlace(); });
    lblPage_ = new QLabel(this);
    lblPage_->setObjectName(u"lblPage"_s);
    lblPage_->setContentsMargins(8, 8, 8, 8);
    auto* panel = new ButtonPanel(*this);
    makeButtons(*panel);
    auto* right = new QVBoxLayout;
    right->addWidget(preview_, 1);
    right->addWidget(lblPage_);
    auto* sides = new QHBoxLayout(this);
    sides->setContentsMargins(0, 0, 0, 0);
    sides->setSpacing(0);
    sides->addWidget(panel);
    sides->addLayout(right, 1);
    resize(parent->size());
}

PrintPreview::~PrintPreview() = default;

void PrintPreview::makeButtons(ButtonPanel& panel) {
    panel.addHeading(u"OPTIONS"_s);
    panel.add({.name = u"btnPrint"_s,
               .caption = u"Print"_s,
               .key = Qt::CTRL | Qt::Key_P,
               .handler = [this] { print(); },
               .role = ButtonFacts::Role::Main});
    panel.add({.name = u"btnPdf"_s,
               .caption = u"Keep as &PDF"_s,
               .handler = [this] { keepFile(); },
               .icon = u"save"_s});
    panel.addHeading(u"PAGES"_s);
    const auto leaf = [&](const QString& name, const QString& caption, Qt::Key key,
                          const QString& icon, auto page) {
        panel.add({.name = name,
                   .caption = caption,
                   .key = key,
                   .handler = [this, page] { goTo(page(*preview_)); },
                   .hint = caption + u" ["_s + QKeySequence(key).toString() + u']',
                   .icon = icon});
    };
    using View = QPrintPreviewWidget;
    leaf(u"btnFirst"_s, u"First"_s, Qt::Key_Home, u"first"_s, [](View&) { return 1; });
    leaf(u"btnPrev"_s, u"Previous"_s, Qt::Key_PageUp, u"prev"_s,
         [](View& view) { return view.currentPage() - 1; });
    leaf(u"btnNext"_s, u"Next"_s, Qt::Key_PageDown, u"next"_s,
         [](View& view) { return view.currentPage() + 1; });
    leaf(u"btnLast"_s, u"Last"_s, Qt::Key_End, u"last"_s,
         [](View& view) { return view.pageCount(); });
    panel.addHeading(u"SIZE"_s);
    panel.add({.name = u"btnLarger"_s,
               .caption = u"Larger"_s,
               .key = Qt::Key_Plus,
               .handler = [this] { preview_->zoomIn(); },
               .hint = u"Larger [+]"_s,
               .icon = u"add"_s});
    panel.add({.name = u"btnWhole"_s,
               .caption = u"&Whole Page"_s,
               .handler = [this] { preview_->fitInView(); },
               .icon = u"document"_s});
    panel.addClose(
        {.name = u"btnClose"_s, .caption = u"Close"_s, .key = Qt::Key_Escape, .handler = [this] {
             reject();
         }});
}

void PrintPreview::goTo(int page) {
    preview_->setCurrentPage(std::clamp(page, 1, preview_->pageCount()));
    showPlace();
}

void PrintPreview::showPlace() {
    lblPage_->setText(u"Page %1 of %2"_s.arg(preview_->currentPage()).arg(preview_->pageCount()));
}

void PrintPreview::print() {
    QPrintDialog choice(printer_.get(), this);
    if (velcro::ui::runModal(choice) == QDialog::Accepted) {
        pages_(*printer_);
    }
}

void PrintPreview::keepFile() {
    QFileDialog choice(this, u"Keep as PDF"_s,
                       QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                       u"PDF files (*.pdf)"_s);
    choice.setAcceptMode(QFileDialog::AcceptSave);
    choice.setDefaultSuffix(u"pdf"_s);
    choice.selectFile(name_ + u".pdf"_s);
    if (velcro::ui::runModal(choice) == QDialog::Accepted) {
        writeFile(choice.selectedFiles().first());
    }
}

void PrintPreview::writeFile(const QString& path) {
    if (QFile file(path); !file.open(QIODevice::WriteOnly)) {
        throw VelmaraError(u"%1 cannot be written. %2"_s.arg(path, file.errorString()));
    }
    QPrinter file(QPrinter::HighResolution);
    file.setOutputFormat(QPrinter::PdfFormat);
    file.setOutputFileName(path);
    file.setPageOrientation(QPageLayout::Landscape);
    pages_(file);
    lblPage_->setText(u"Kept as %1"_s.arg(path));
}
