#pragma once

#include "distance/frmMacierz.h"
#include "sheet/frmNotePad.h"
#include "support/golden.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace dorvan::test {

// A session with a folder for files to import.
class ImportSession : public ::testing::Test, protected TestSession {
protected:
    TemporaryFolder folder;

    ~ImportSession() override { expectScriptsUsedUp(); }

    std::string file(const std::string& name, std::string_view bytes) {
        writeFile(folder / name, bytes);
        return folder / name;
    }

    template <class Dialog> void inDialog(std::function<void(Dialog&)> does) {
        forms.scripts.push_back([does](Form& form) { does(dynamic_cast<Dialog&>(form)); });
    }

    frmNotePad& sheet(std::int16_t slot = 1) { return DataWindow(session, slot); }
    frmMacierz& matrix(std::int16_t slot = 1) { return MatrixWindow(session, slot); }

    // The texts of one row of a grid.
    static std::vector<std::string> row(const Grid& grid, int number) {
        std::vector<std::string> texts;
        for (int column = 0; column < grid.Columns(); ++column) texts.push_back(grid.Text(number, column));
        return texts;
    }

    // No window, no slot taken, the working arrays as they were.
    void expectNothingChanged() {
        EXPECT_TRUE(session.Children.empty());
        EXPECT_TRUE(children.log.empty());
        EXPECT_EQ(session.DataStates.size(), 2u);
        EXPECT_TRUE(session.DataStates[1].Deleted);
        EXPECT_EQ(session.MatrixStates.size(), 2u);
        EXPECT_TRUE(session.MatrixStates[1].Deleted);
        EXPECT_EQ(session.tables.RecordNames, Names(1, "kept"));
        EXPECT_EQ(session.tables.VariableNames, Names(1, "kept"));
        EXPECT_EQ(session.tables.DataValues, FloatTable(1, 1, 7));
        EXPECT_EQ(session.tables.DistanceValues, FloatTable(1, 1, 7));
    }
    void fillWorkingArrays() {
        session.tables.RecordNames = Names(1, "kept");
        session.tables.VariableNames = Names(1, "kept");
        session.tables.DataValues = FloatTable(1, 1, 7);
        session.tables.DistanceValues = FloatTable(1, 1, 7);
    }
};

using Texts = std::vector<std::string>;

inline Message importRefusal(const std::string& text) {
    return {.Text = text, .Icon = MessageIcon::Exclamation, .Title = "Import"};
}
inline Message criticalMessage(const std::string& text) {
    return {.Text = text, .Icon = MessageIcon::Critical};
}

} // namespace dorvan::test
