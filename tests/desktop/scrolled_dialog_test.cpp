#include "desktop/form_face.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <deque>

namespace dorvan::test {

namespace {

// A form of so many lines with a field each.
struct LongForm : Form {
    explicit LongForm(int lines) : Form("frmLong") {
        for (int line = 0; line < lines; ++line) {
            labels.emplace_back("Label" + std::to_string(line), "Line " + std::to_string(line));
            fields.emplace_back("Text" + std::to_string(line));
        }
    }
    void CancelCommand() override { Visible = false; }

    std::deque<Label> labels;
    std::deque<TextBox> fields;
    CommandButton ok{"Command1", "OK"};
};

class ScrolledDialogTest : public ::testing::Test {
protected:
    // Shows the form, lets `look` look at the dialog, and closes it.
    template <class Look> void WithDialog(LongForm& form, const Look& look) {
        FormFace face(form, dispatch, nullptr);
        auto* rows = face.AddRows();
        for (std::size_t line = 0; line < form.labels.size(); ++line)
            face.AddField(rows, form.labels[line], form.fields[line], {});
        face.AddButtons({{&form.ok, [&form] { form.Visible = false; }}});
        bool looked = false;
        QTimer::singleShot(50, &face, [&] {
            QApplication::setActiveWindow(&face);
            look(face);
            looked = true;
            face.findChild<QPushButton*>("Command1")->click();
        });
        face.RunModal();
        EXPECT_TRUE(looked);
    }

    EventDispatch dispatch;
};

} // namespace

TEST_F(ScrolledDialogTest, ADialogHigherThanTheScreenStaysInItAndScrollsToTheFieldWithTheFocus) {
    LongForm form(80);
    WithDialog(form, [](FormFace& face) {
        const QSize screen = face.screen()->availableSize();
        EXPECT_LE(face.frameGeometry().height(), screen.height());
        EXPECT_LE(face.frameGeometry().width(), screen.width());
        auto* area = face.findChild<QScrollArea*>();
        ASSERT_NE(area, nullptr);
        EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
        auto* button = face.findChild<QPushButton*>("Command1");
        EXPECT_FALSE(area->isAncestorOf(button)) << "the buttons stay in sight";
        EXPECT_TRUE(face.rect().contains(button->mapTo(&face, button->rect().bottomRight())));
        EXPECT_EQ(QApplication::focusWidget(), face.findChild<QWidget*>("Text0"));
        auto* last = face.findChild<QWidget*>("Text79");
        const auto inSight = [&] {
            return area->viewport()->rect().contains(last->mapTo(area->viewport(), last->rect().center()));
        };
        EXPECT_FALSE(inSight());
        face.findChild<QWidget*>("Text78")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), last);
        EXPECT_TRUE(inSight());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), button);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), face.findChild<QWidget*>("Text0"));
    });
}

TEST_F(ScrolledDialogTest, ADialogThatFitsHasNoScrollBars) {
    LongForm form(3);
    WithDialog(form, [](FormFace& face) {
        EXPECT_EQ(face.findChild<QScrollArea*>(), nullptr);
        EXPECT_EQ(face.size(), face.layout()->totalSizeHint());
    });
}

} // namespace dorvan::test
