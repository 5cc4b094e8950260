// Takes pictures of every page, the warning, the voice test and the icons, in one palette at the scale that Qt is told
// to have (QT_SCALE_FACTOR), in the window's own size or in one that is named (logical pixels), with the font's own
// size or one that is named. For looking at: orvelle-pictures FOLDER light|dark [WIDTHxHEIGHT [POINTS]]
#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QTreeWidget>
#include <iostream>
#include <string>

#include "adapters/looks/Theme.h"
#include "adapters/qt/widgets/StatusImage.h"
#include "adapters/qt/windows/MainWindow.h"
#include "adapters/qt/windows/PasswordDialog.h"
#include "adapters/qt/windows/VoiceTestDialog.h"
#include "adapters/qt/windows/WarningDialog.h"
#include "panel/Controls.h"
#include "panel/MultiFSWarningDlg.h"
#include "tests/qt/forms/PlausiblePanel.h"
#include "tests/qt/shell/ScriptedTrial.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle::qt {

namespace {

class Folder {
public:
    Folder(QString path, QString suffix) : folder(std::move(path)), end(std::move(suffix)) { QDir().mkpath(folder); }

    void Keep(const QPixmap& picture, const QString& name) const {
        picture.save(folder + QLatin1Char('/') + name + end + QLatin1String(".png"));
    }

private:
    const QString folder;
    const QString end;
};

// As the user who sees that page has come there.
void PickNode(MainWindow& window, const PanelControls& panel, const QString& tag) {
    auto* tree = qobject_cast<QTreeWidget*>(window.WidgetOf(panel.twCategory));
    for (QTreeWidgetItemIterator item(tree); *item != nullptr; ++item) {
        const auto* node = static_cast<TreeNode*>((*item)->data(0, Qt::UserRole).value<void*>());
        if (QString::fromStdString(node->Tag) != tag) continue;
        tree->setCurrentItem(*item);
        return;
    }
}

// A page that changed its layout asks for another turn.
void Settle() {
    for (int turn = 0; turn < 5; ++turn) QApplication::processEvents();
}

void TakePages(MainWindow& window, PanelControls& panel, const Folder& folder) {
    static constexpr const char* Names[PageCount] = {"00-overview",    "01-velmarc", "02-rogerwilco", "03-teamspeak",
                                                     "04-joy-to-key",  "05-vatsim",  "06-volumes",    "07-key-to-key",
                                                     "08-kestrine",    "09-options", "10-atis",       "11-extra",
                                                     "12-key-mappings"};
    for (int shown = 0; shown < PageCount; ++shown) {
        for (Long other = 0; other < PageCount; ++other) panel.Panels(other).Visible = false;
        panel.Panels(shown).Visible = true;
        PickNode(window, panel, QString::number(shown));
        Settle();
        folder.Keep(window.grab(), QLatin1String(Names[shown]));
    }
}

QPixmap IconSheet(const PanelControls& panel) {
    constexpr int Sizes[] = {16, 22, 24, 32, 48, 64, 96, 128, 256};
    QPixmap sheet(1120, 900);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.fillRect(560, 0, 560, 900, QColor(0x20, 0x20, 0x20));
    for (const int left : {8, 568}) {
        int place = 0;
        for (const std::string& key : panel.IconList.Keys()) {
            painter.drawPixmap(left + place % 24 * 22, 8 + place / 24 * 22, StatusPixmap(key, 16));
            ++place;
        }
        int top = 110;
        for (const int size : Sizes) {
            int x = left;
            for (const char* key : {"VVVVVV", "RRRRRR", "VVVRRY", "VRVRVR"}) {
                if (x + size > left + 544) break;
                painter.drawPixmap(x, top, StatusPixmap(key, size));
                x += size + 8;
            }
            top += size + 8;
        }
    }
    return sheet;
}

// The voice test in each of its states, and the question for a password.
void TakeVoiceDialogs(const Folder& folder) {
    struct State {
        const char* Name;
        bool Works;
        double Room, Voice;
        const char* Beginning;  // of the sentence
    };
    static constexpr State States[] = {{"quiet", true, 8, 8, "Please be quiet"},
                                       {"speaking", true, 22, 66, "Now speak"},
                                       {"measured", true, 22, 66, "Measured: "},
                                       {"too-loud", true, 22, 100, "Measured, but"},
                                       {"too-soft", true, 40, 42, "Your voice"},
                                       {"silent", true, 0, 0, "Nothing comes"},
                                       {"no-devices", false, 0, 0, "The microphone does not"}};
    for (const State& state : States) {
        ScriptedTrial trial;
        trial.Microphone = trial.Headset = state.Works;
        VoiceTestDialog dialog(trial, {50, 50}, nullptr);
        const auto* sentence = dialog.findChild<QLabel*>("Measurement");
        trial.Input = [&] { return sentence->text().startsWith("Now speak") ? state.Voice : state.Room; };
        trial.Output = state.Works ? 70 : 0;
        MakeQuick(dialog);
        dialog.show();
        WaitFor([&] { return sentence->text().startsWith(state.Beginning); });
        if (state.Works) trial.Input = [&] { return state.Voice; };
        for (int level = 0; level < 30; ++level) {
            QMetaObject::invokeMethod(dialog.findChild<QTimer*>(), "timeout", Qt::DirectConnection);
            if (!sentence->text().startsWith(state.Beginning)) break;
        }
        Settle();
        folder.Keep(dialog.grab(), QStringLiteral("21-voice-test-") + state.Name);
    }
    PasswordDialog question("voice.example:64738", PasswordQuestion::First);
    question.show();
    Settle();
    folder.Keep(question.grab(), QStringLiteral("22-password"));
}

// An empty size is the window's own.
int TakePictures(const Folder& folder, QSize size) {
    PanelControls panel;
    MultiFSWarningDlg warning;
    MainWindow window(panel);
    WarningDialog dialog(warning);
    FillPlausibly(panel);
    panel.Width = panel.Panels(0).Left + panel.Panels(0).Width;
    panel.Height = panel.Panels(0).Height();
    panel.Show();
    if (!size.isEmpty()) window.resize(size);
    TakePages(window, panel, folder);
    PanelControls longPanel;
    MainWindow longWindow(longPanel);
    FillWithLongestTexts(longPanel);
    longPanel.Show();
    if (!size.isEmpty()) longWindow.resize(size);
    Settle();
    folder.Keep(longWindow.grab(), QStringLiteral("00-overview-longest"));
    PanelControls emptyPanel;
    MainWindow emptyWindow(emptyPanel);
    emptyPanel.Show();
    if (!size.isEmpty()) emptyWindow.resize(size);
    Settle();
    folder.Keep(emptyWindow.grab(), QStringLiteral("00-overview-empty"));
    emptyPanel.Panels(6).Visible = true;
    Settle();
    folder.Keep(emptyWindow.grab(), QStringLiteral("06-volumes-closed"));
    warning.Show();
    Settle();
    folder.Keep(dialog.grab(), QStringLiteral("20-warning"));
    TakeVoiceDialogs(folder);
    folder.Keep(IconSheet(panel), QStringLiteral("30-icons"));
    return 0;
}

}  // namespace

}  // namespace orvelle::qt

int main(int count, char** values) {
    QApplication application(count, values);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3 || arguments.size() > 5 ||
        (arguments[2] != QLatin1String("light") && arguments[2] != QLatin1String("dark"))) {
        std::cerr << "usage: orvelle-pictures FOLDER light|dark [WIDTHxHEIGHT [POINTS]]\n";
        return 2;
    }
    const QStringList sides = arguments.value(3).split('x');
    const QSize size(sides.value(0).toInt(), sides.value(1).toInt());
    if (arguments.size() == 5) {
        QFont font = QApplication::font();
        font.setPointSize(arguments[4].toInt());
        QApplication::setFont(font);
    }
    orvelle::ApplyTheme(arguments[2] == QLatin1String("dark") ? orvelle::Scheme::Dark : orvelle::Scheme::Light);
    const QString suffix = QStringLiteral("-%1-%2x").arg(arguments[2]).arg(application.devicePixelRatio());
    return orvelle::qt::TakePictures(orvelle::qt::Folder(arguments[1], suffix), size);
}
