#include "desktop_test.h"

#include "desktop/child_face.h"
#include "desktop/grid_widget.h"

#include <QListWidget>
#include <QRadioButton>

namespace dorvan::test {

class StructureTest : public DesktopTest {
protected:
    bool Dirty() { return desktop.session.DataStates.at(std::size_t(Sheet().Index)).Dirty; }
    QLineEdit& EditCell() { return Find<QLineEdit>(Face(), "EditCell"); }
};

TEST_F(StructureTest, TheCommandsAreOnForASheetOnly) {
    const char* commands[] = {"mnuEditVarAdd", "mnuEditVarEdit",   "mnuEditVarDelete",
                              "mnuEditRecAdd", "mnuEditRecDelete", "mnuEditStandarization"};
    for (const auto* name : commands) EXPECT_FALSE(Item(name).isEnabled()) << name;
    NewSheet(3, 2);
    for (const auto* name : commands) EXPECT_TRUE(Item(name).isEnabled()) << name;
    for (const auto* name : {"toolData.AddRec", "toolData.DelRec", "toolData.AddVar", "toolData.DelVar",
                             "toolData.EditVar", "toolData.Standarization"})
        EXPECT_TRUE(Button(name).isEnabled()) << name;
}

TEST_F(StructureTest, RecordsAndVariablesAreAdded) {
    NewSheet(3, 2);
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Add record");
        auto& count = Find<QLineEdit>(dialog, "Text1");
        EXPECT_EQ(count.text(), "1");
        count.selectAll();
        QTest::keyClicks(&count, "1x2345");
        EXPECT_EQ(count.text(), "123");
        QTest::keyClick(&count, Qt::Key_Return);
        EXPECT_TRUE(Find<QPushButton>(dialog, "Command2").hasFocus());
        QTest::keyClick(&Find<QPushButton>(dialog, "Command2"), Qt::Key_Space);
    });
    Click("toolData.AddRec");
    EXPECT_EQ(Sheet().RecordCount(), 126);
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Add variable");
        Find<QPushButton>(dialog, "Command2").click();
    });
    Click("mnuEditVarAdd");
    EXPECT_EQ(Sheet().Grid1.Text(0, 4), "VAR 3");
    EXPECT_TRUE(Dirty());
}

TEST_F(StructureTest, ARefusalStandsOverTheDialogWhichStays) {
    NewSheet(3, 99);
    InDialog([this](QDialog& dialog) {
        auto& count = Find<QLineEdit>(dialog, "Text1");
        count.selectAll();
        QTest::keyClicks(&count, "2");
        AnswerNext("OK", "Max. 100 variables. You can add only  1 new variables.");
        Find<QPushButton>(dialog, "Command2").click();
        EXPECT_TRUE(dialog.isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Click("toolData.AddVar");
    EXPECT_EQ(Sheet().VariableCount(), 99);
    EXPECT_FALSE(Dirty());
}

TEST_F(StructureTest, ARecordIsDeletedAfterAQuestion) {
    NewSheet(3, 2);
    ClickCell(ActiveGrid(), 2, 3);
    AnswerNext("No", "Delete record number  2?");
    Click("mnuEditRecDelete");
    EXPECT_EQ(Sheet().RecordCount(), 3);
    EXPECT_TRUE(ActiveGrid().hasFocus());
    AnswerNext("Yes", "Delete record number  2?");
    Click("toolData.DelRec");
    EXPECT_EQ(Sheet().RecordCount(), 2);
    EXPECT_EQ(Sheet().Grid1.Text(2, 1), "Record 3");
    EXPECT_TRUE(ActiveGrid().hasFocus());
    EXPECT_TRUE(Dirty());
}

TEST_F(StructureTest, AnOpenEditGoesWithTheRecordThatIsDeleted) {
    NewSheet(3, 2);
    ClickCell(ActiveGrid(), 2, 2);
    Type("45");
    EXPECT_TRUE(EditCell().isVisible());
    AnswerNext("Yes", "Delete record number  2?");
    Click("toolData.DelRec");
    QTRY_VERIFY2(!EditCell().isVisible(), "the edit is closed");
    EXPECT_TRUE(ActiveGrid().hasFocus());
    EXPECT_EQ(Sheet().RecordCount(), 2);
    EXPECT_EQ(Sheet().Grid1.Text(2, 2), "0.000") << "the edit was dropped, not written into the next record";
    ClickCell(ActiveGrid(), 1, 2);
    Type("7");
    Press(Qt::Key_Return);
    EXPECT_EQ(Sheet().Grid1.Text(1, 2), "7.000") << "the edit after it is committed";
}

TEST_F(StructureTest, AnOpenEditIsCommittedWhenTheRecordStays) {
    NewSheet(3, 2);
    ClickCell(ActiveGrid(), 2, 2);
    Type("45");
    AnswerNext("No", "Delete record number  2?");
    Click("toolData.DelRec");
    EXPECT_EQ(Sheet().RecordCount(), 3);
    QTRY_COMPARE(QString::fromStdString(Sheet().Grid1.Text(2, 2)), QString("45.000"));
    EXPECT_TRUE(ActiveGrid().hasFocus());
}

TEST_F(StructureTest, VariablesAreRenamed) {
    NewSheet(3, 2);
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Var Editor");
        auto& list = Find<QListWidget>(dialog, "List1");
        auto& name = Find<QLineEdit>(dialog, "Text1");
        EXPECT_EQ(list.count(), 2);
        EXPECT_EQ(name.text(), "VAR  1");
        list.setCurrentRow(1);
        EXPECT_EQ(name.text(), "VAR  2");
        name.setFocus();
        name.selectAll();
        QTest::keyClicks(&name, "Width");
        QTest::keyClick(&name, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible()) << "Enter accepts the name, not the dialog";
        EXPECT_EQ(list.item(1)->text(), "Width");
        EXPECT_EQ(list.currentRow(), 1);
        Find<QPushButton>(dialog, "Command1").click();
    });
    Click("toolData.EditVar");
    EXPECT_EQ(Sheet().Grid1.Text(0, 3), "Width");
    EXPECT_TRUE(Dirty());
}

TEST_F(StructureTest, AVariableIsDeletedAfterAQuestionWithNoAsTheDefault) {
    NewSheet(3, 2);
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Delete variable");
        Find<QListWidget>(dialog, "List1").setCurrentRow(0);
        InDialog([](QDialog& question) {
            auto& box = dynamic_cast<QMessageBox&>(question);
            EXPECT_EQ(box.text(), "Delete variable: VAR  1?");
            EXPECT_EQ(box.icon(), QMessageBox::Question);
            EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
            box.button(QMessageBox::Yes)->click();
        });
        Find<QPushButton>(dialog, "Command1").click();
        EXPECT_FALSE(dialog.isVisible());
    });
    Click("toolData.DelVar");
    EXPECT_EQ(Sheet().VariableCount(), 1);
    EXPECT_EQ(Sheet().Grid1.Text(0, 2), "VAR  2");
    EXPECT_EQ(Sheet().Grid1.Text(1, 2), "0");
}

TEST_F(StructureTest, DeletingAVariableBesideAMissingValueEndsTheRun) {
    NewSheet(3, 2);
    ClickCell(ActiveGrid(), 2, 3);
    Type("n/a");
    Press(Qt::Key_Return);
    QTRY_COMPARE(QString::fromStdString(Sheet().Grid1.Text(2, 3)), QString("N/A"));
    InDialog([this](QDialog& dialog) {
        AnswerNext("Yes", "Delete variable: VAR  1?");
        Find<QPushButton>(dialog, "Command1").click();
        dialog.close();
    });
    Click("mnuEditVarDelete");
    EXPECT_EQ(ended, "Run-time error '13': Type mismatch");
    ended.clear();
}

TEST_F(StructureTest, AStandardizedSheetIsAWindowOfItsOwn) {
    NewSheet(3, 1);
    for (const char* value : {"10", "20", "30"}) {
        ClickCell(ActiveGrid(), value[0] - '0', 2);
        Type(value);
        Press(Qt::Key_Return);
    }
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Standardize data");
        EXPECT_TRUE(Find<QRadioButton>(dialog, "Option2").isChecked());
        Find<QPushButton>(dialog, "Command2").click();
    });
    Click("mnuEditStandarization");
    EXPECT_EQ(Face().windowTitle(), "[DATA]: Untitled:2");
    EXPECT_EQ(Sheet().Grid1.Text(2, 2), "50.000");
    EXPECT_TRUE(Dirty());
    InDialog([this](QDialog& dialog) {
        EXPECT_TRUE(Find<QRadioButton>(dialog, "Option2").isChecked());
        Find<QRadioButton>(dialog, "Option1").click();
        Find<QPushButton>(dialog, "Command2").click();
    });
    Click("toolData.Standarization");
    EXPECT_EQ(Sheet().Grid1.Text(1, 2), "-1.000");
}

} // namespace dorvan::test
