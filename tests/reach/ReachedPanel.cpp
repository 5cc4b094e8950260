#include "tests/reach/ReachedPanel.h"

#include <signal.h>

#include <QProcessEnvironment>

namespace orvelle {

namespace {

constexpr const char* NamesEvent = "object:property-change:accessible-name";

void Hear(AtspiEvent* event, void* names) {
    if (event->source != nullptr) {
        g_object_ref(event->source);
        static_cast<std::vector<std::string>*>(names)->push_back(Reached(event->source).Name());
    }
    g_boxed_free(ATSPI_TYPE_EVENT, event);
}

}  // namespace

void ReachedPanel::HearNames() {
    listener = atspi_event_listener_new(Hear, &HeardNames, nullptr);
    ASSERT_TRUE(atspi_event_listener_register(listener, NamesEvent, nullptr));
}

void ReachedPanel::SetUp() {
    atspi_init();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", folder.path());
    environment.insert("XDG_DATA_HOME", folder.filePath("data"));
    environment.insert("XDG_CONFIG_HOME", folder.filePath("config"));
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(PANEL_PROGRAM, QStringList());
    ASSERT_TRUE(program.waitForStarted(60'000));
    ASSERT_TRUE(ComesTrue([this] { return Main() && Deck() && Deck().Is(ATSPI_STATE_SHOWING); }));
}

void ReachedPanel::TearDown() {
    if (listener != nullptr) {
        atspi_event_listener_deregister(listener, NamesEvent, nullptr);
        g_object_unref(listener);
    }
    if (program.state() == QProcess::NotRunning) return;
    program.terminate();
    if (!program.waitForFinished(60'000)) program.kill();
    program.waitForFinished(60'000);
}

Reached ReachedPanel::Application() const {
    const Reached desktop(atspi_get_desktop(0));
    for (const Reached& application : desktop.Children())
        if (static_cast<qint64>(atspi_accessible_get_process_id(application.Object(), nullptr)) ==
            program.processId()) {
            // What the bus told may have come before what is asked now.
            atspi_accessible_set_cache_mask(application.Object(), ATSPI_CACHE_NONE);
            return application;
        }
    return Reached();
}

Reached ReachedPanel::Window(const std::string& title) const {
    const Reached application = Application();
    if (!application) return Reached();
    for (const Reached& window : application.Children())
        if (window.Name() == title) return window;
    return Reached();
}

Reached ReachedPanel::Page() const {
    const Reached pages = FindBelow(Main(), [](const Reached& one) { return one.Role() == "layered pane"; });
    if (!pages) return Reached();
    // Each lies in what scrolls it.
    for (const Reached& area : pages.Children())
        if (area.Is(ATSPI_STATE_SHOWING))
            return FindBelow(area, [](const Reached& one) { return !one.Name().empty(); });
    return Reached();
}

bool ReachedPanel::OpenPage(const std::string& node, const std::string& page) const {
    const Reached cell = FindBelow(Main(), "table cell", node);
    if (!cell) return false;
    if (!cell.Is(ATSPI_STATE_SELECTED) && !cell.Do("Toggle")) return false;
    return ComesTrue([&] {
        const Reached shown = Page();
        return shown && shown.Name() == page;
    });
}

bool ReachedPanel::OpenDeckPage(const std::string& title) const {
    const Reached tab = FindBelow(Deck(), "page tab", title);
    // The row of tabs is named by the one that is chosen.
    return tab && tab.Do("Press") && ComesTrue([&] { return bool(FindBelow(Deck(), "page tab list", title)); });
}

Reached ReachedPanel::InPage(const std::string& role, const std::string& name) const {
    ComesTrue([&] { return bool(FindBelow(Page(), role, name)); });
    return FindBelow(Page(), role, name);
}

Reached ReachedPanel::InDeck(const std::string& role, const std::string& name) const {
    ComesTrue([&] { return bool(FindBelow(Deck(), role, name)); });
    return FindBelow(Deck(), role, name);
}

bool ReachedPanel::OverviewComesToSay(const std::string& label) const {
    return OpenPage("Config", "Overview") && ComesTrue([&] { return bool(FindBelow(Page(), "label", label)); });
}

}  // namespace orvelle
