#include "screens/SysFuncGlobal.h"

#include "data/DataModules.h"
#include "data/Errors.h"
#include "platform/seat/Programs.h"
#include "screens/Buttons.h"
#include "screens/ImageLists.h"
#include "screens/SysStatusBar.h"
#include "ui/KeyCap.h"

#include <QApplication>
#include <QDialog>
#include <QPainter>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <set>

using velcro::ui::psHTML;
using velcro::ui::psOwnerDraw;
using velcro::ui::psText;
using velcro::ui::StatusBar;

namespace {

class SysFuncGlobalTest : public testing::Test
{
protected:
    void SetUp() override {
        createDataModules();
        fillImageLists(*sData);
    }
    ~SysFuncGlobalTest() override {
        freeDataModules();
        velcro::seat::setProgramFinder({});
        velcro::seat::setProgramStarter({});
        sfg_SetCursor("RESET");
    }
};

/// A bar as screens have it: its second panel decides where messages stand.
std::unique_ptr<StatusBar> barWith(velcro::ui::PanelStyle second) {
    auto bar = std::make_unique<StatusBar>();
    bar->addPanel(psHTML, "UNIT", 60);
    bar->addPanel(second, "Title", 200);
    for (int i = 0; i < 6; ++i) {
        bar->addPanel(psHTML, {}, 200);
    }
    bar->setPanelDrawer(sfg_StatusBarDisplay);
    bar->resize(1500, 32);
    return bar;
}

QRgb colourIn(StatusBar& bar, int panel) {
    return bar.grab().toImage().pixel(bar.panelRect(panel).right() - 8, 16);
}

} // namespace

TEST_F(SysFuncGlobalTest, messagesStandInTheirPanelWithTheColourOfTheirType) {
    const auto plain = barWith(psHTML);
    const auto shifted = barWith(psText);
    const std::pair<const char*, QRgb> types[] = {
        {"Msg", 0xffd5ffd5},  {"Info", 0xfffff39f},  {"Error", 0xffff0000},
        {"Warn", 0xffffff00}, {"Alert", 0xffffa6a6},
    };
    int panel = 1;
    for (const auto& [type, colour] : types) {
        sfg_DisplayBar(type, "text", *plain, panel);
        sfg_DisplayBar(type, "text", *shifted, panel);
        EXPECT_EQ(colourIn(*plain, panel), colour) << type;
        EXPECT_EQ(colourIn(*shifted, panel + 1), colour) << type;
        EXPECT_EQ(shifted->panelStyle(1), psText) << "the title is no message panel";
        ++panel;
    }
    for (const char* other : {"error", "Other", ""}) {
        sfg_DisplayBar(other, "text", *plain, 6);
        EXPECT_EQ(colourIn(*plain, 6), plain->palette().color(QPalette::Window).rgb()) << other;
    }
}

TEST_F(SysFuncGlobalTest, messagesHaveTheImageAndTheInkOfTheirType) {
    const auto bar = barWith(psHTML);
    int asked = -1;
    sData->MainImages = [&asked](int index) {
        asked = index;
        QPixmap picture(16, 16);
        picture.fill(QColor(0, 0, index));
        return QIcon(picture);
    };
    const struct
    {
        const char* type;
        int image;
        QRgb ink;
    } types[] = {
        {"Msg", 29, 0xff000000},  {"Info", 28, 0xff000000},   {"Error", 72, 0xffffffff},
        {"Warn", 50, 0xff000000}, {"Alert", 101, 0xff000000}, {"Other", 49, 0xff000000},
    };
    for (const auto& [type, image, ink] : types) {
        sfg_DisplayBar(type, "MMMMMM", *bar, 1);
        const QImage picture = bar->grab().toImage();
        EXPECT_EQ(asked, image) << type;
        const QRect panel = bar->panelRect(1);
        EXPECT_EQ(picture.pixel(panel.left() + 14, panel.center().y()), QColor(0, 0, image).rgb())
            << type;
        bool found = false;
        for (int x = panel.left() + 30; x < panel.right(); ++x) {
            for (int y = panel.top(); y < panel.bottom(); ++y) {
                const int distance = qAbs(qGray(picture.pixel(x, y)) - qGray(ink));
                found = found || distance < 48;
            }
        }
        EXPECT_TRUE(found) << type << " is written in its ink";
    }
}

TEST_F(SysFuncGlobalTest, theMemoryIsOneForAllBars) {
    const auto first = barWith(psHTML);
    const auto second = barWith(psText);
    sfg_DisplayBar("Error", "of the first", *first, 2);
    sfg_DisplayBar("Msg", "of the second", *second, 2);
    EXPECT_EQ(colourIn(*first, 2), 0xffd5ffd5) << "painted anew from the shared memory";
    EXPECT_EQ(gStatusMsg[2] + gStatusType[2], "of the secondMsg");
    sfg_ResetStatusBar(*second, 2);
    EXPECT_EQ(second->panelStyle(3), psHTML);
    EXPECT_EQ(first->panelStyle(2), psOwnerDraw);
    EXPECT_EQ(gStatusMsg[2], "of the second") << "what it said stays";
}

TEST_F(SysFuncGlobalTest, cursors) {
    const std::pair<const char*, Qt::CursorShape> cursors[] = {
        {"BUSY", Qt::WaitCursor}, {"busy", Qt::WaitCursor}, {"HAND", Qt::PointingHandCursor},
        {"sql", Qt::BusyCursor},  {"none", Qt::BusyCursor}, {"", Qt::BusyCursor},
    };
    for (const auto& [type, shape] : cursors) {
        sfg_SetCursor(type);
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), shape) << type;
    }
    sfg_SetCursor("Reset");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "however often it was set";
}

TEST_F(SysFuncGlobalTest, formsStandInTheMiddle) {
    const QSize screen = QApplication::primaryScreen()->geometry().size();
    QWidget form;
    form.resize(301, 201);
    const std::pair<int, int> offsets[] = {{0, 0}, {-5, 0}, {1, 10}, {12, 120}};
    for (const auto& [offset, pixels] : offsets) {
        EXPECT_EQ(sfg_SetFormLeft(form, offset), (screen.width() - 301) / 2 + pixels);
        EXPECT_EQ(sfg_SetFormTop(form, offset), (screen.height() - 201) / 2 + pixels);
    }
}

TEST_F(SysFuncGlobalTest, keyCapsHaveTheirIndex) {
    const std::pair<const char*, int> small[] = {
        {"F1", 51}, {"F12", 62}, {"INS", 5}, {"ENTER", 6}, {"DEL", 7},
        {"ESC", 8}, {"Y", 90},   {"N", 79},  {"esc", 8},
    };
    for (const auto& [key, index] : small) {
        ASSERT_NE(velcro::ui::findKeyCap(key), nullptr) << key;
        EXPECT_EQ(velcro::ui::findKeyCap(key)->smallIndex, index) << key;
    }
    std::set<int> indices;
    for (const auto& cap : velcro::ui::keyCaps()) {
        EXPECT_TRUE(indices.insert(cap.smallIndex).second) << cap.key << " shares its picture";
    }
    QStringList asked;
    sData->KeyBoardBlue = [&asked](int index) {
        asked << "small" + QString::number(index);
        return QIcon();
    };
    sData->MainMenuKBImages = [&asked](int index) {
        asked << "large" + QString::number(index);
        return QIcon();
    };
    QPushButton button;
    sfg_ImageKeybd16(button, "del");
    sfg_ImageKeybd32(button, "F1");
    sfg_ImageKeybd32(button, "ESC");
    EXPECT_EQ(asked, (QStringList{"small7", "large0", "large15"}));
    fillImageLists(*sData);
    for (const char* key : {"?", "CTRL-P", "CTRL-L", "CTRL-N", "CTRL-S", "CTRL-H", "CTRL-R",
                            "CTRL-K", "CTRL-U", "CTRL-I", "CTRL-ENTER", "ALT-1", "ALT-4", "F7"}) {
        sfg_ImageKeybd16(button, key);
        EXPECT_FALSE(button.icon().isNull()) << key;
        sfg_ImageKeybd32(button, key);
        EXPECT_FALSE(button.icon().isNull()) << key;
    }
    sfg_ImageKeybd16(button, "NOKEY");
    EXPECT_TRUE(button.icon().isNull()) << "the old picture is taken away";
}

TEST_F(SysFuncGlobalTest, aKeyboardThatRunsIsNotStartedAgainAndASeatWithoutOneSaysSo) {
    QTemporaryDir folder;
    const QString keyboard = folder.filePath("onboard");
    ASSERT_TRUE(QFile::copy(QStandardPaths::findExecutable("sleep"), keyboard));
    velcro::seat::setProgramFinder(
        [&keyboard](const QString& name) { return name == "onboard" ? keyboard : QString(); });
    int started = 0;
    velcro::seat::setProgramStarter([&started](const QString&, const QStringList&) {
        ++started;
        return true;
    });
    QDialog form;
    EXPECT_TRUE(makeKeyboardButton(form)->isEnabled());
    sfg_ShowTouchKeyboard();
    EXPECT_EQ(started, 1);
    QProcess running;
    running.start(keyboard, {"60"});
    ASSERT_TRUE(running.waitForStarted());
    sfg_ShowTouchKeyboard();
    EXPECT_EQ(started, 1);
    running.kill();
    running.waitForFinished();
    sfg_ShowTouchKeyboard();
    EXPECT_EQ(started, 2);
    velcro::seat::setProgramFinder([](const QString&) { return QString(); });
    const auto* button = makeKeyboardButton(form);
    EXPECT_FALSE(button->isEnabled());
    EXPECT_EQ(button->toolTip(), "No keyboard for the screen is installed on this seat");
}

TEST_F(SysFuncGlobalTest, theFirstKeyboardThatTheSeatHas) {
    QStringList present = {"maliit-keyboard", "onboard"};
    QStringList started;
    velcro::seat::setProgramFinder([&present](const QString& name) {
        return present.contains(name) ? "/bin/" + name : QString();
    });
    velcro::seat::setProgramStarter([&started](const QString& path, const QStringList&) {
        started << path;
        return true;
    });
    sfg_ShowTouchKeyboard();
    sfg_ShowOnScreenKeyboard();
    present.removeFirst();
    sfg_ShowTouchKeyboard();
    EXPECT_EQ(started, (QStringList{"/bin/maliit-keyboard", "/bin/onboard", "/bin/onboard"}));
    present.clear();
    try {
        sfg_ShowTouchKeyboard();
        FAIL() << "there is no keyboard";
    } catch (const std::exception& error) {
        EXPECT_STREQ(error.what(), "On-screen keyboard application not found.");
    }
}
