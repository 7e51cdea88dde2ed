#include "widgets/AutoButton.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// A 36 by 36 button opened with a picture, as the windows make theirs.
class AutoButtonTest : public ::testing::Test {
protected:
    AutoButtonTest()
    {
        button.resize(36, 36);
        button.setBackdrop(picture);
        button.Event_Open();
        button.show();
    }

    void press(int x, int y) { QTest::mousePress(&button, Qt::LeftButton, {}, QPoint(x, y)); }
    void drag(int x, int y) { QTest::mouseMove(&button, QPoint(x, y)); }
    void release(int x, int y) { QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(x, y)); }
    bool pressedLook() const { return button.Backdrop() == nullptr; } // the null pressedIcon

    PictureRef picture = std::make_shared<Picture>(36, 36);
    AutoButton button;
    QSignalSpy action{&button, &AutoButton::Action};
    QSignalSpy mouseDown{&button, &AutoButton::MouseDown};
    QSignalSpy mouseUp{&button, &AutoButton::MouseUp};
};

} // namespace

TEST_F(AutoButtonTest, ClickInsideShowsThePressedLookThenRaisesActionAndMouseUp)
{
    QLabel label(u"Add"_s);
    button.myText = &label;
    press(18, 18);
    EXPECT_TRUE(pressedLook());
    EXPECT_TRUE(label.font().bold());
    release(18, 18);
    EXPECT_EQ(action.count(), 1);
    EXPECT_EQ(mouseUp.count(), 1);
    EXPECT_EQ(button.Backdrop(), picture);
    EXPECT_FALSE(label.font().bold());
}

TEST_F(AutoButtonTest, PressIsGivenUpBeyondTheEdgeTakenBackInsideAndTheEdgeIsOutsideForTheRelease)
{
    press(18, 18);
    drag(36, 18);
    EXPECT_TRUE(pressedLook()) << "x = Width is not yet beyond the button";
    drag(18, 37);
    EXPECT_FALSE(pressedLook());
    release(18, 37);
    EXPECT_EQ(mouseUp.count(), 0) << "a press dragged away ends silently";

    press(18, 18);
    drag(-1, 18);
    EXPECT_FALSE(pressedLook());
    drag(10, 10);
    EXPECT_TRUE(pressedLook()) << "back inside it is pressed again";
    release(10, 10);
    EXPECT_EQ(action.count(), 1);
    EXPECT_EQ(mouseUp.count(), 1) << "the silence does not carry over to the next press";

    for (const QPoint& edge : {QPoint(0, 18), QPoint(36, 18), QPoint(18, 0), QPoint(18, 36)}) {
        press(18, 18);
        drag(edge.x(), edge.y());
        release(edge.x(), edge.y());
        EXPECT_EQ(button.Backdrop(), picture);
    }
    EXPECT_EQ(action.count(), 1);
    EXPECT_EQ(mouseUp.count(), 5) << "the press never left, so its end is reported";
}

TEST_F(AutoButtonTest, LookFollowsEnabledStateAndForgetsALaterBackdrop)
{
    button.disableMe();
    EXPECT_EQ(button.Backdrop(), nullptr);
    EXPECT_FALSE(button.isEnabled());
    button.enableMe();
    EXPECT_EQ(button.Backdrop(), picture);

    button.setBackdrop(std::make_shared<Picture>(36, 36));
    press(18, 18);
    release(18, 18);
    EXPECT_EQ(mouseDown.count() + action.count(), 0) << "the release of a declined press is not the button's";
    button.paintIcon();
    EXPECT_EQ(button.Backdrop(), picture);
}

TEST_F(AutoButtonTest, ToggleButtonStaysOnAndItsSecondPressSwitchesOffAtOnce)
{
    button.Toggle = true;
    press(18, 18);
    release(18, 18);
    EXPECT_TRUE(pressedLook()) << "keeps its pressed look";

    press(18, 18);
    EXPECT_EQ(button.Backdrop(), picture);
    EXPECT_EQ(mouseUp.count(), 2) << "the switching-off press ends at once";
    release(18, 18);
    EXPECT_EQ(action.count(), 1);
    EXPECT_EQ(mouseUp.count(), 2);
}
