// Every control of the panel and of the deck is found, page by page, by a name that no other one of its role on that
// page has, with a role, what it holds, and a description without markup.
#include <map>
#include <regex>

#include "tests/reach/ReachedPanel.h"

namespace orvelle {
namespace {

using Missing = std::vector<std::string>;

const std::set<std::string> Controls = {"check box",   "combo box",    "image",         "list",        "page tab",
                                        "push button", "radio button", "slider",        "spin button", "status bar",
                                        "table",       "text",         "toggle button", "tree",        "tree table",
                                        "frame",       "dialog",       "label"};

class NamesTest : public ReachedPanel {
protected:
    // What a control lacks, a sentence each.
    void Check(const Reached& control, const std::string& page);
    void Walk(const Reached& one, const std::string& page);

    Missing missing;
    std::size_t controls = 0;
    std::map<std::string, std::map<std::string, int>> namesOfPage;  // by page, role and name, how often
};

bool Has(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

void NamesTest::Check(const Reached& control, const std::string& page) {
    const std::string role = control.Role();
    const std::string name = control.Name();
    const std::string place = page + ": " + role + " \"" + name + "\"";
    const auto lacks = [&](bool isThere, const std::string& what) {
        if (!isThere) missing.push_back(place + " " + what);
    };
    // A label that says nothing now may have no words; all others have a name.
    if (role != "label") {
        ++controls;
        lacks(!name.empty(), "has no name");
        lacks(++namesOfPage[page][role + " " + name] == 1, "is not the only one of that name");
    }
    lacks(!std::regex_search(control.Description(), std::regex("</?[a-z]+>")),
          "is described with markup: " + control.Description());
    if (role == "text" || role == "combo box" || role == "label") lacks(control.Text().has_value(), "has no text");
    if (role == "slider" || role == "spin button") lacks(control.Value().has_value(), "has no value");
    if (role == "slider") lacks(control.IsLabelled(), "has no label");
    if (!control.Is(ATSPI_STATE_ENABLED)) return;
    if (role == "check box" || role == "radio button") lacks(Has(control.Actions(), "Toggle"), "cannot be toggled");
    if (role == "push button") lacks(Has(control.Actions(), "Press"), "cannot be pressed");
}

// Into all that shows; the list and the field of a combo box are that box's, and so are the cells of a table.
void NamesTest::Walk(const Reached& one, const std::string& page) {
    const std::string role = one.Role();
    if (!one.Is(ATSPI_STATE_SHOWING)) return;
    if (role == "unknown" || role == "invalid") missing.push_back(page + ": \"" + one.Name() + "\" has no role");
    if (Controls.contains(role)) Check(one, page);
    if (role == "combo box" || role == "spin button" || role == "table") return;
    for (const Reached& child : one.Children()) Walk(child, page);
}

std::string Lines(const Missing& missing) {
    std::string lines;
    for (const std::string& line : missing) lines += line + "\n";
    return lines;
}

TEST_F(NamesTest, EveryControlOfThePanelIsFoundByItsName) {
    struct Node {
        const char* Name;
        const char* Page;
    };
    for (const auto& [node, page] : {Node{"Config", "Overview"},
                                     {"Velmarc", "Velmarc"},
                                     {"Kestrine", "Kestrine"},
                                     {"Extra", "Extra"},
                                     {"Options", "Options"},
                                     {"Voice", "Overview"},
                                     {"Teamspeak", "Teamspeak"},
                                     {"RogerWilco", "RogerWilco"},
                                     {"VATSIM", "VATSIM"},
                                     {"Volumes", "Volumes"},
                                     {"Key mappings", "Key mappings"},
                                     {"Key Management", "Overview"},
                                     {"Joy to Key", "Joy to Key"},
                                     {"Key to Key", "Key to Key"}}) {
        ASSERT_TRUE(OpenPage(node, page)) << node;
        Walk(Page(), node);
    }
    Check(Main(), "panel");
    const Reached tree = FindBelow(Main(), "tree", "Categories");
    ASSERT_TRUE(tree);
    Check(tree, "panel");
    EXPECT_TRUE(FindBelow(tree, "table column header", "Categories"));
    EXPECT_EQ(Lines(missing), "");
    EXPECT_GE(controls, 100U);
}

TEST_F(NamesTest, EveryControlOfTheDeckIsFoundByItsName) {
    for (const std::string page : {"Flight", "Voice engine", "Faults"}) {
        ASSERT_TRUE(OpenDeckPage(page)) << page;
        Walk(Deck(), page);
    }
    EXPECT_EQ(Lines(missing), "");
    EXPECT_GE(controls, 120U);
}

TEST_F(NamesTest, WindowsAreWindows) {
    EXPECT_EQ(Main().Role(), "frame");
    EXPECT_EQ(Deck().Role(), "frame");
}

TEST_F(NamesTest, TheOverviewIsRead) {
    ASSERT_TRUE(OpenPage("Config", "Overview"));
    const auto says = [this](const std::string& role, const std::string& subject) {
        return FindBelow(Page(), [&](const Reached& one) {
                   return one.Role() == role && one.Name().starts_with(subject + ": ") && one.Text() &&
                          one.Name() == subject + ": " + *one.Text();
               }).Object() != nullptr;
    };
    for (const char* subject : {"COM1 frequency", "COM2 frequency", "COM1 receives", "COM1 transmits", "COM2 receives",
                                "COM2 transmits", "Simulator link", "Framework link", "RogerWilco", "VATSIM voice"})
        EXPECT_TRUE(ComesTrue([&] { return says("label", subject); })) << subject;
    EXPECT_TRUE(says("image", "Status at a glance"));
    EXPECT_TRUE(OverviewComesToSay("COM1 frequency: 122.800"));
}

}  // namespace
}  // namespace orvelle
