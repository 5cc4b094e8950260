// The tables find the rows that an event concerns without looking at the others. Whatever the rows and the events, the
// key strokes and the rows' states must be those of a plain walk over all rows.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "panel/FrmOrvelle.h"
#include "panel/MappingTable.h"
#include "replay/World.h"

namespace orvelle {

namespace {

struct ModelRow {
    std::string Text;
    bool IsToggle;
    bool IsDown = false;
    Long Code;
};

// The plain walk.
class Model {
public:
    void KeyDown(bool repeat, bool fsActive, const std::string& key, const std::string& sequence) {
        for (ModelRow& row : Rows) {
            if (!sequence.empty() && row.Text == sequence) {
                if ((row.IsDown && row.IsToggle) || (!repeat && fsActive)) Press(row);
            } else if (!key.empty() && row.Text.find(key) != std::string::npos && row.IsDown && row.IsToggle) {
                Press(row);
            }
        }
    }
    void KeyUp(const std::string& key) {
        for (ModelRow& row : Rows)
            if (!key.empty() && row.Text.find(key) != std::string::npos && row.IsDown) Release(row);
    }
    void ButtonDown(const std::string& button) {
        for (ModelRow& row : Rows)
            if (!button.empty() && row.Text == button) Press(row);
    }
    void ButtonUp(const std::string& button) {
        for (ModelRow& row : Rows)
            if (!button.empty() && row.Text == button) Release(row);
    }

    std::vector<ModelRow> Rows;
    std::ostringstream Strokes;

private:
    void Press(ModelRow& row) { Send(row, !(row.IsToggle && row.IsDown)); }
    void Release(ModelRow& row) {
        if (!row.IsToggle && row.IsDown) Send(row, false);
    }
    void Send(ModelRow& row, bool down) {
        row.IsDown = down;
        Strokes << "user32.keybd_event(" << row.Code << ", " << row.Code << ", " << (down ? 1 : 3) << ", 0)\n";
    }
};

class RowSearchTest : public testing::TestWithParam<int> {
protected:
    // Few short texts, so that rows share texts and contain one another.
    std::string AnyText() {
        std::string text;
        for (int length = Random(4); length > 0; --length) text += "AB+"[Random(3)];
        return text;
    }
    int Random(int below) { return std::uniform_int_distribution<int>(0, below - 1)(generator); }
    void SetUp() override {
        world.Output.Only({"none"});
        panel.Show();
        world.Output.Only({"user32.keybd_event"});
        output.str("");
    }
    void AddRow(ListView& list, Model& model) {
        const ModelRow row{AnyText(), Random(2) == 0, false, 1 + Random(99)};
        model.Rows.push_back(row);
        const Long number = list.AddRow(row.Text);
        list.SetSubItem(number, ToggleColumn, row.IsToggle ? "Toggle" : "Push");
        list.SetSubItem(number, KeyScanColumn, std::to_string(row.Code));
    }
    void ExpectSame(const ListView& list, const Model& model) {
        ASSERT_EQ(output.str(), model.Strokes.str());
        for (Long row = 1; row <= list.Count(); ++row)
            ASSERT_EQ(list.SubItem(row, KeyStateColumn) == "DOWN", model.Rows[static_cast<std::size_t>(row) - 1].IsDown)
                << "row " << row;
    }

    std::mt19937 generator{static_cast<unsigned>(GetParam())};
    std::ostringstream output;
    replay::World world{output};
    FrmOrvelle panel{world.Outside()};
};

TEST_P(RowSearchTest, KeysDoWhatAPlainWalkDoes) {
    Model model;
    for (int event = 0; event < 600; ++event) {
        const std::string key = AnyText();
        switch (Random(5)) {
            case 0:
                AddRow(panel.ListKeyToKey, model);
                break;
            case 1:
                if (!model.Rows.empty() && Random(4) == 0) {
                    const int row = Random(static_cast<int>(model.Rows.size()));
                    model.Rows.erase(model.Rows.begin() + row);
                    panel.ListKeyToKey.RemoveRow(row + 1);
                    break;
                }
                [[fallthrough]];
            case 2:
            case 3: {
                const bool repeat = Random(3) == 0;
                const bool fsActive = Random(3) != 0;
                const std::string sequence = AnyText();
                model.KeyDown(repeat, fsActive, key, sequence);
                world.Velmarc.FSKeyDown(repeat, fsActive, key, sequence);
                break;
            }
            default:
                model.KeyUp(key);
                world.Velmarc.FSKeyUp(0, 0, key, "");
                break;
        }
        ASSERT_NO_FATAL_FAILURE(ExpectSame(panel.ListKeyToKey, model)) << "event " << event;
    }
}

TEST_P(RowSearchTest, ButtonsDoWhatAPlainWalkDoes) {
    Model model;
    for (int event = 0; event < 600; ++event) {
        const std::string button = AnyText();
        if (Random(3) == 0) {
            AddRow(panel.ListJoyToKey, model);
        } else if (Random(2) == 0) {
            model.ButtonDown(button);
            world.Velmarc.FSJoyDown(0, 0, button, "");
        } else {
            model.ButtonUp(button);
            world.Velmarc.FSJoyUp(0, 0, button, "");
        }
        ASSERT_NO_FATAL_FAILURE(ExpectSame(panel.ListJoyToKey, model)) << "event " << event;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RowSearchTest, testing::Range(0, 20));

}  // namespace

}  // namespace orvelle
