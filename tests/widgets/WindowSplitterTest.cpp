#include "widgets/WindowSplitter.h"

#include <QGroupBox>
#include <QLabel>
#include <QSignalSpy>
#include <QSplitterHandle>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

// A 300 by 400 window filled by a vertical splitter with areas of at least 150.
class WindowSplitterTest : public ::testing::Test {
protected:
    WindowSplitterTest()
    {
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(splitter);
        splitter->setMinBeforeArea(150);
        splitter->setMinAfterArea(150);
        host.resize(300, 400);
    }

    // The bar moves under the mouse, so each point is mapped at its moment.
    void dragBar(int dy)
    {
        host.show();
        QSplitterHandle* bar = splitter->handle(1);
        const QPoint start = bar->mapToGlobal(bar->rect().center());
        QTest::mousePress(bar, Qt::LeftButton, {}, bar->mapFromGlobal(start));
        QTest::mouseMove(bar, bar->mapFromGlobal(start + QPoint(0, dy)));
        QTest::mouseRelease(bar, Qt::LeftButton, {}, bar->mapFromGlobal(start + QPoint(0, dy)));
    }

    QWidget host;
    QVBoxLayout* layout = new QVBoxLayout(&host);
    WindowSplitter* splitter = new WindowSplitter(Qt::Vertical, &host);
};

} // namespace

TEST_F(WindowSplitterTest, BarIsDraggedNoFurtherThanTheMinimumOfEitherArea)
{
    QSignalSpy moved(splitter, &WindowSplitter::SplitterMoved);
    dragBar(-1000);
    EXPECT_EQ(splitter->Position(), 150);
    EXPECT_EQ(splitter->afterArea()->height(), 400 - 150 - 7) << "a bar of 7";
    dragBar(1000);
    EXPECT_EQ(splitter->afterArea()->height(), 150);
    EXPECT_GE(moved.count(), 2);
}

TEST_F(WindowSplitterTest, RegisteredControlsAreIteratedInOrderWithTheirSide)
{
    auto* loose = new QLabel(&host);
    auto* pane = new QGroupBox(splitter); // QSplitter alone would make it a third pane
    auto* orphan = new QLabel;
    splitter->AddControl(loose, true);
    splitter->AddControl(pane, true);
    splitter->AddControl(orphan, false);
    EXPECT_EQ(splitter->count(), 2);
    EXPECT_EQ(orphan->parentWidget(), splitter->afterArea());

    QList<std::pair<QWidget*, bool>> seen;
    for (splitter->MoveFirst(); splitter->HasNext();) {
        seen.append({splitter->PeekNext(), splitter->NextIsBefore()});
        EXPECT_EQ(splitter->GetNext(), seen.last().first);
    }
    EXPECT_EQ(seen, (QList<std::pair<QWidget*, bool>>{{loose, true}, {pane, true}, {orphan, false}}));

    // Taking out an item already passed keeps the iteration where it was.
    splitter->MoveFirst();
    splitter->GetNext();
    splitter->RemoveControl(loose);
    EXPECT_EQ(splitter->PeekNext(), pane);
    delete orphan;
    splitter->MoveFirst();
    EXPECT_EQ(splitter->GetNext(), pane);
    EXPECT_FALSE(splitter->HasNext()) << "a destroyed control is no longer registered";
    splitter->AddControl(pane, false);
    EXPECT_EQ(pane->parentWidget(), splitter->afterArea()) << "registered again on the other side";
}
