// Pages before they are printed, by keyboard and by buttons.
#include "screens/PrintPreview.h"

#include "support/ScreenChecks.h"
#include "support/ScriptedUser.h"
#include "ui/Handler.h"

#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

void threePages(QPrinter& paper) {
    QPainter painter(&paper);
    for (int page = 1; page <= 3; ++page) {
        painter.drawText(2000, 2000, QString("page %1").arg(page));
        if (page < 3) {
            paper.newPage();
        }
    }
}

class PrintPreviewTest : public testing::Test
{
protected:
    PrintPreviewTest() {
        velcro::ui::setErrorDisplay([this](const QString& message) { told << message; });
        window.resize(1024, 768);
    }
    ~PrintPreviewTest() override { velcro::ui::setErrorDisplay({}); }

    void keepAs(const QString& path) {
        user.expectForm("Keep as PDF", [&] {
            auto& name = user.find<QLineEdit>("fileNameEdit");
            EXPECT_TRUE(name.text().startsWith("CRO555"));
            user.typeInto("fileNameEdit", path);
            user.press(Qt::Key_Return);
        });
        user.press(Qt::Key_P, Qt::AltModifier);
    }

    ScriptedUser user;
    QStringList told;
    QWidget window;
    PrintPreview preview{"CRO555", threePages, &window};
};

} // namespace

TEST_F(PrintPreviewTest, keysLeafThroughThePages) {
    user.workIn(preview, [&] {
        EXPECT_EQ(namelessControls(preview) + clippedControls(preview) + smallTargets(preview) +
                      offScreen(preview),
                  QStringList());
        const std::pair<Qt::Key, const char*> steps[] = {
            {Qt::Key_PageUp, "Page 1 of 3"}, {Qt::Key_PageDown, "Page 2 of 3"},
            {Qt::Key_End, "Page 3 of 3"},    {Qt::Key_PageDown, "Page 3 of 3"},
            {Qt::Key_PageUp, "Page 2 of 3"}, {Qt::Key_Home, "Page 1 of 3"},
        };
        for (const auto& [key, place] : steps) {
            user.press(key);
            EXPECT_EQ(user.sees("lblPage"), place) << key;
        }
        auto& pages = *preview.findChild<QPrintPreviewWidget*>();
        const double whole = pages.zoomFactor();
        user.press(Qt::Key_Plus);
        EXPECT_GT(pages.zoomFactor(), whole);
        user.press(Qt::Key_W, Qt::AltModifier);
        EXPECT_NEAR(pages.zoomFactor(), whole, whole / 10);
        user.press(Qt::Key_Escape);
    });
}

TEST_F(PrintPreviewTest, thePrintersFormIsWorkedByKeysAndLeadsBack) {
    QTemporaryDir folder;
    user.workIn(preview, [&] {
        for (const bool prints : {false, true}) {
            user.expectForm("Print", [&] {
                if (auto* file = user.form().findChild<QLineEdit*>("filename")) {
                    file->setText(folder.filePath("printed.pdf"));
                }
                EXPECT_EQ(offScreen(user.form()), QStringList());
                user.press(prints ? Qt::Key_Return : Qt::Key_Escape);
            });
            user.press(Qt::Key_P, Qt::ControlModifier);
            EXPECT_EQ(QFileInfo::exists(folder.filePath("printed.pdf")), prints);
        }
        user.press(Qt::Key_End);
        EXPECT_EQ(user.sees("lblPage"), "Page 3 of 3") << "the keys are the preview's again";
        user.press(Qt::Key_Escape);
    });
}

TEST_F(PrintPreviewTest, thePagesAreKeptAsAFileOrItIsSaidWhyNot) {
    QTemporaryDir folder;
    const QString path = folder.filePath("kept.pdf");
    user.workIn(preview, [&] {
        keepAs(path);
        EXPECT_EQ(user.sees("lblPage"), "Kept as " + path);
        const QString nowhere = folder.filePath("missing/none.pdf");
        keepAs(nowhere);
        EXPECT_TRUE(told.join('|').startsWith(nowhere + " cannot be written."));
        user.press(Qt::Key_Escape);
    });
    QProcess reader;
    reader.start("pdftotext", {path, "-"});
    ASSERT_TRUE(reader.waitForFinished());
    const QString text = reader.readAllStandardOutput();
    EXPECT_TRUE(text.contains("page 1") && text.contains("page 3")) << text.toStdString();
}
