#include "DialogTestSupport.h"

#include "document/Settings.h"
#include "ui/board/BoardView.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWheelEvent>

using namespace tb;
using namespace tb::test;

namespace {

QString Order(const ScheduleDocument &doc)
{
    QStringList out;
    for (int i = 1; i <= doc.strips.count(); ++i)
        out.append(doc.strips[i].isScene() ? doc.strips[i][StripField::SceneNumber] : doc.strips[i].kind());
    return out.join(u' ');
}

} // namespace

class TestBoardView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        doc = new ScheduleDocument;
        prompter = new RememberingPrompter;
        doc->setPrompter(prompter);
        for (int i = 1; i <= 20; ++i)
            AddScene(*doc, QString::number(i), "1", i % 2 ? "D" : "N", "I");
        for (int i = 1; i <= 30; ++i)
            AddElement(*doc, QStringLiteral("ELEMENT %1").arg(i), 1, QString::number(i));
        QFile::remove(TempPath("board.ini"));
        settings = new Settings(TempPath("board.ini"));
        host = new QWidget;
        auto *layout = new QVBoxLayout(host);
        layout->setContentsMargins(0, 0, 0, 0);
        board = new BoardView(*doc, *settings, host);
        layout->addWidget(board);
        host->resize(1400, 900);
        host->show();
        QVERIFY(QTest::qWaitForWindowExposed(host));
        board->SetScrolls();
    }
    void cleanup()
    {
        delete host;
        delete doc;
        delete prompter;
        delete settings;
    }

    void scrollBarsFollowTheTables()
    {
        QCOMPARE(board->horizontalBar()->minimum(), 1);
        QCOMPARE(board->horizontalBar()->maximum(), 20);
        QCOMPARE(board->verticalBar()->maximum(), 30);
        QCOMPARE(board->horizontalBar()->pageStep(), 10);
        QCOMPARE(board->verticalBar()->pageStep(), 10);
        NewDocument(*doc);
        board->resetBoard();
        QCOMPARE(board->horizontalBar()->maximum(), 0);
        QCOMPARE(board->horizontalScroll(), 0);
    }
    void clickSelectsAStrip()
    {
        QSignalSpy changed(board, &BoardView::selectionChanged);
        doc->SelElement = 4;
        QTest::mouseClick(board->paintBox(), Qt::LeftButton, Qt::NoModifier, stripPoint(4));
        QCOMPARE(doc->SelStart, 4);
        QCOMPARE(doc->SelEnd, 4);
        QCOMPARE(doc->SelElement, -1);
        QCOMPARE(changed.count(), 1);
        // With the board scrolled, the same place is another strip.
        board->scrollToStrip(6);
        QTest::mouseClick(board->paintBox(), Qt::LeftButton, Qt::NoModifier, stripPoint(9));
        QCOMPARE(doc->SelStart, 9);
        // Other buttons and keys select nothing.
        QTest::mouseClick(board->paintBox(), Qt::LeftButton, Qt::ControlModifier, stripPoint(12));
        QTest::mouseClick(board->paintBox(), Qt::MiddleButton, Qt::NoModifier, stripPoint(12));
        QCOMPARE(doc->SelStart, 9);
        QCOMPARE(changed.count(), 2);
        // Hit testing does not clamp: past the last strip the selection names a strip that
        // is not there.
        board->scrollToStrip(1);
        QTest::mouseClick(board->paintBox(), Qt::LeftButton, Qt::NoModifier, stripPoint(23));
        QCOMPARE(doc->SelStart, 23);
    }
    void shiftClickWidens()
    {
        // Without a selection, Shift selects from strip 1, and the highlight runs from there.
        QTest::mouseClick(board->paintBox(), Qt::LeftButton, Qt::ShiftModifier, stripPoint(5));
        QCOMPARE(doc->SelStart, 0);
        QCOMPARE(doc->SelEnd, 5);
        board->paintBox()->repaint();
        const QImage shown = board->displayBuffer();
        const BoardGeometry g = board->boardGeometry();
        const int y = 7 * g.rowH + 4;
        QCOMPARE(shown.pixelColor(stripPoint(1, y).x() + g.stripW / 2 - 3, y), QColor(255, 0, 0));
        QCOMPARE(shown.pixelColor(stripPoint(5, y).x() + g.stripW / 2 - 3, y), QColor(255, 0, 0));
        QVERIFY(shown.pixelColor(stripPoint(6, y).x() + g.stripW / 2 - 3, y) != QColor(255, 0, 0));
        // Widening runs either way, and a click inside keeps the range.
        QTest::mouseClick(board->paintBox(), Qt::LeftButton, Qt::NoModifier, stripPoint(4));
        QTest::mouseClick(board->paintBox(), Qt::LeftButton, Qt::ShiftModifier, stripPoint(7));
        QCOMPARE(doc->SelStart, 4);
        QCOMPARE(doc->SelEnd, 7);
        QTest::mouseClick(board->paintBox(), Qt::LeftButton, Qt::ShiftModifier, stripPoint(2));
        QCOMPARE(doc->SelStart, 2);
        QCOMPARE(doc->SelEnd, 7);
        QTest::mouseClick(board->paintBox(), Qt::LeftButton, Qt::ShiftModifier, stripPoint(5));
        QCOMPARE(doc->SelStart, 2);
        QCOMPARE(doc->SelEnd, 7);
    }
    void clickOnARestDay()
    {
        StripRecord rest;
        rest.set(StripField::StripKind, StripKinds::AutoRestDay);
        QVERIFY(doc->strips.insert(6, rest).ok());
        board->SetScrolls();
        doc->SelStart = 2;
        doc->SelEnd = 3;
        QSignalSpy changed(board, &BoardView::selectionChanged);
        prompter->tickRemember = true;
        QTest::mouseClick(board->paintBox(), Qt::LeftButton, Qt::NoModifier, stripPoint(6));
        QCOMPARE(prompter->prompts.size(), 1);
        const Prompt &prompt = prompter->prompts.first();
        QCOMPARE(prompt.kind, MessageKind::Warning);
        QCOMPARE(prompt.buttons, Buttons::Ok);
        QCOMPARE(prompt.text,
                 "You cannot select auto-rest day banners, as these are managed by Torvanbridge.\r\rIf you "
                 "wish to manually ccontrol them, select \"Convert auto-rest days to banners\" from the "
                 "Strips menu.");
        QCOMPARE(prompt.checkBoxText, "Don't show this message again");
        QCOMPARE(doc->SelStart, 0);
        QCOMPARE(doc->SelEnd, 0);
        QCOMPARE(changed.count(), 1);
        QVERIFY(settings->skipWarning(RememberedWarning::AutoRestClick));
        // The day recalculation has run: the rest day, placed by hand, is gone again.
        QCOMPARE(doc->strips.count(), 20);

        // Remembered: no more warnings, and the selection still clears.
        QVERIFY(doc->strips.insert(3, rest).ok());
        doc->SelStart = doc->SelEnd = 1;
        QTest::mouseClick(board->paintBox(), Qt::LeftButton, Qt::NoModifier, stripPoint(3));
        QCOMPARE(prompter->prompts.size(), 1);
        QCOMPARE(doc->SelStart, 0);
    }
    void clickSelectsAnElement()
    {
        doc->SelStart = 2;
        doc->SelEnd = 4;
        QTest::mouseClick(board->paintBox(), Qt::LeftButton, Qt::NoModifier, rowPoint(3));
        QCOMPARE(doc->SelElement, 3);
        QCOMPARE(doc->SelStart, 0);
        QCOMPARE(doc->SelEnd, 0);
        board->verticalBar()->setValue(28);
        QTest::mouseClick(board->paintBox(), Qt::LeftButton, Qt::NoModifier, rowPoint(33));
        QCOMPARE(doc->SelElement, 30); // lowered to the element count
        // The header corner selects nothing.
        QTest::mouseClick(board->paintBox(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 50));
        QCOMPARE(doc->SelElement, 30);
    }
    void drop_data()
    {
        Columns<int, int, int, QString, int, int>("from", "last", "to", "order", "newStart", "newEnd");
        Row("3..5 before 9", 3, 5, 9, "1 2 6 7 8 3 4 5 9 10 11 12 13 14 15 16 17 18 19 20", 6, 8);
        Row("2..3 past the end", 2, 3, 23, "1 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 2 3", 19, 20);
        Row("3..5 inside the selection", 3, 5, 5, "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20", 3, 5);
    }
    void drop()
    {
        auto [from, last, to, order] = Fetch<int, int, int, QString>("from", "last", "to", "order");
        QSignalSpy changed(board, &BoardView::documentChanged);
        QWidget *box = board->paintBox();
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, stripPoint(from));
        QTest::mouseClick(box, Qt::LeftButton, Qt::ShiftModifier, stripPoint(last));
        // A plain press selects the one strip under it, so a run is picked up with Shift held.
        QTest::mousePress(box, Qt::LeftButton, Qt::ShiftModifier, stripPoint(from));
        QTest::mouseMove(box, stripPoint(from) + QPoint(8, 0));
        const QPoint at = boundaryBefore(to) + QPoint(6, 0);
        QTest::mouseMove(box, at);
        QVERIFY(board->isDragging());
        QVERIFY(board->dropArrow()->isVisible());
        QCOMPARE(box->cursor().shape(), Qt::DragMoveCursor);
        // The marker sits on the boundary, half a strip wide, its middle on the line.
        if (to <= doc->strips.count())
            QCOMPARE(board->dropArrow()->x() + board->boardGeometry().stripW / 4, boundaryBefore(to).x());
        QTest::mouseRelease(box, Qt::LeftButton, Qt::NoModifier, at);
        QCOMPARE(Order(*doc), order);
        QTEST(doc->SelStart, "newStart");
        QTEST(doc->SelEnd, "newEnd");
        const bool moved = !order.startsWith("1 2 3 4");
        QCOMPARE(doc->undo.UndoDepth, moved ? 1 : 0);
        QCOMPARE(changed.count(), moved ? 1 : 0);
        QVERIFY(!board->isDragging());
        QVERIFY(!board->dropArrow()->isVisible());
        QCOMPARE(box->cursor().shape(), Qt::ArrowCursor);
    }
    void smallMovesDoNotDrag()
    {
        QWidget *box = board->paintBox();
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, stripPoint(4));
        QTest::mousePress(box, Qt::LeftButton, Qt::NoModifier, stripPoint(4));
        QTest::mouseMove(box, stripPoint(4) + QPoint(5, 3));
        QTest::mouseMove(box, stripPoint(4) + QPoint(-5, -3));
        QVERIFY(!board->isDragging());
        QVERIFY(!board->dropArrow()->isVisible());
        QTest::mouseMove(box, stripPoint(4) + QPoint(6, 0));
        QVERIFY(board->isDragging());
        // Back within the five pixels, the drag goes on.
        QTest::mouseMove(box, stripPoint(4));
        QVERIFY(board->isDragging());
        QTest::mouseRelease(box, Qt::LeftButton, Qt::NoModifier, stripPoint(4));
        QCOMPARE(doc->undo.UndoDepth, 0); // dropped inside the selection
        // Without a strip selected, nothing is dragged at all.
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, rowPoint(2));
        QTest::mousePress(box, Qt::LeftButton, Qt::NoModifier, QPoint(50, 50));
        QTest::mouseMove(box, stripPoint(8));
        QVERIFY(!board->isDragging());
        QTest::mouseRelease(box, Qt::LeftButton, Qt::NoModifier, stripPoint(8));
    }
    void autoScrollNearTheEdges()
    {
        host->resize(700, 600); // narrower than the board
        QTRY_COMPARE(board->width(), 700);
        QWidget *box = board->paintBox();
        const BoardGeometry g = board->boardGeometry();
        board->scrollToStrip(5);
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, stripPoint(6));
        QTest::mousePress(box, Qt::LeftButton, Qt::NoModifier, stripPoint(6));
        QTest::mouseMove(box, QPoint(g.colW - 10, 400));
        QVERIFY(board->leftTimer()->isActive());
        QTRY_COMPARE_WITH_TIMEOUT(board->horizontalScroll(), 1, 2000);
        QTest::mouseMove(box, QPoint(box->width() - 5, 400));
        QVERIFY(!board->leftTimer()->isActive());
        QVERIFY(board->rightTimer()->isActive());
        QTRY_VERIFY_WITH_TIMEOUT(board->horizontalScroll() >= 3, 2000);
        QTest::mouseMove(box, QPoint(box->width() / 2, 400));
        QVERIFY(!board->leftTimer()->isActive());
        QVERIFY(!board->rightTimer()->isActive());
        QTest::mouseRelease(box, Qt::LeftButton, Qt::NoModifier, QPoint(box->width() / 2, 400));
    }
    void wheel_data()
    {
        // delta: +120 wheel up, -120 wheel down; over: 0 the board, 1 and 2 its scroll bars
        Columns<int, int, int, int, int, int, int>("delta", "keys", "over", "h", "v", "newH", "newV");
        const int shift = Qt::ShiftModifier;
        Row("down: one strip left", -120, 0, 0, 5, 5, 4, 5);
        Row("up: one strip right", 120, 0, 0, 5, 5, 6, 5);
        Row("down at the first strip", -120, 0, 0, 1, 5, 1, 5);
        Row("shift down: next row", -120, shift, 0, 5, 5, 5, 6);
        Row("shift up: row before", 120, shift, 0, 5, 5, 5, 4);
        Row("shift down at the last row", -120, shift, 0, 5, 30, 5, 30);
        Row("two notches", -240, 0, 0, 5, 5, 3, 5);
        Row("half a notch", -60, 0, 0, 5, 5, 5, 5);
        // Over the scroll bars the board's rule holds too.
        Row("over the horizontal bar", -120, 0, 1, 5, 5, 4, 5);
        Row("shift over the vertical bar", -120, shift, 2, 5, 5, 5, 6);
        Row("shift with control is not exactly shift", -120, shift | int(Qt::ControlModifier), 0, 5, 5, 4, 5);
    }
    void wheel()
    {
        auto [delta, keys, over, h, v] = Fetch<int, int, int, int, int>("delta", "keys", "over", "h", "v");
        board->setScrollPositions(h, v);
        QWidget *targets[] = {board->paintBox(), board->horizontalBar(), board->verticalBar()};
        sendWheel(targets[over], delta, Qt::KeyboardModifiers(keys));
        QTEST(board->horizontalScroll(), "newH");
        QTEST(board->verticalScroll(), "newV");
    }
    void mainWindowForwardsTheWheel()
    {
        board->setScrollPositions(5, 5);
        QWheelEvent event(QPointF(1, 1), QPointF(1, 1), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QVERIFY(board->handleWheel(&event));
        QCOMPARE(board->horizontalScroll(), 6);
    }
    void zoomSnapping()
    {
        board->setBoardScale(0.7);
        QCOMPARE(board->boardGeometry().stripW, 28);
        QTest::mouseClick(board->paintBox(), Qt::LeftButton, Qt::NoModifier, QPoint(140 + 2 * 28 + 14, 300));
        QCOMPARE(doc->SelStart, 3);
        board->setBoardScale(1.25); // no zoom step: snapped back
        QCOMPARE(board->boardScale(), 1.0);
        board->setBoardScale(1.4);
        board->paintBox()->repaint();
        QCOMPARE(board->headerHeight(), 16 * 25);
        // Zooming keeps the selection.
        QCOMPARE(doc->SelStart, 3);
    }
    void doubleClicks()
    {
        AddBanner(*doc, "MOVE", 1);
        AddDivider(*doc);
        board->SetScrolls();
        QSignalSpy scene(board, &BoardView::editSceneRequested);
        QSignalSpy banner(board, &BoardView::editBannerRequested);
        QSignalSpy element(board, &BoardView::editElementRequested);
        QWidget *box = board->paintBox();
        auto doubleClick = [box](const QPoint &at) {
            QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, at);
            QTest::mouseDClick(box, Qt::LeftButton, Qt::NoModifier, at);
            QTest::mouseRelease(box, Qt::LeftButton, Qt::NoModifier, at);
        };
        for (int strip : {2, 21, 22})
            doubleClick(stripPoint(strip));
        QCOMPARE(scene.count(), 1);
        QCOMPARE(banner.count(), 1);
        QCOMPARE(element.count(), 0);
        doubleClick(rowPoint(4));
        QCOMPARE(element.count(), 1);
        QCOMPARE(doc->SelElement, 4);
        QCOMPARE(scene.count(), 1);
    }
    void headingHints()
    {
        QWidget *box = board->paintBox();
        auto move = [&](const QPoint &pos) {
            QMouseEvent event(QEvent::MouseMove, QPointF(pos), QPointF(box->mapToGlobal(pos)), Qt::NoButton,
                              Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(box, &event);
        };
        doc->strips[3].set(StripField::Location, "Quay");
        doc->strips[3].set(StripField::Synopsis, "Nets are mended");
        const QPoint heading = stripPoint(3, 100);
        move(heading);
        QVERIFY(!QToolTip::isVisible()); // the first move over a strip only takes note
        move(heading + QPoint(1, 0));
        QTRY_VERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), "Scene: 3\nINT. QUAY - DAY\nNets are mended");
        // Below the heading the hint goes.
        move(stripPoint(3, 500));
        QTRY_VERIFY(!QToolTip::isVisible());
        // Switched off in the preferences, no hint.
        board->setScenePopups(false);
        move(heading);
        move(heading + QPoint(1, 0));
        QVERIFY(!QToolTip::isVisible());
    }
    void popupMenu()
    {
        QMenu menu;
        menu.addAction(QStringLiteral("Cut"));
        board->setPopupMenu(&menu);
        const QPoint at = stripPoint(3);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, board->paintBox()->mapToGlobal(at));
        QApplication::sendEvent(board->paintBox(), &event);
        QTRY_VERIFY(menu.isVisible());
        menu.close();
    }
    void paintsThroughTheBuffer()
    {
        BoardStyle style = ClassicBoardStyle();
        board->setStyle(style);
        board->paintBox()->repaint();
        QCOMPARE(board->displayBuffer().size(), board->paintBox()->size());
        // Scrolling repaints from the new first strip.
        board->scrollToStrip(2);
        board->paintBox()->repaint();
        QCOMPARE(board->paintBox()->grab().toImage().pixelColor(stripPoint(2, 500)),
                 style.backgroundOf(StripSlot::NightInt));
    }

private:
    // Where to click: strip i (board number, with the first strip shown at the left),
    // in the element area; element row r in the name column.
    QPoint stripPoint(int i, int y = 400) const
    {
        const BoardGeometry g = board->boardGeometry();
        return QPoint(g.colW + (i - board->horizontalScroll()) * g.stripW + g.stripW / 2, y);
    }
    QPoint boundaryBefore(int i) const
    {
        const BoardGeometry g = board->boardGeometry();
        return QPoint(g.colW + (i - board->horizontalScroll()) * g.stripW, 400);
    }
    QPoint rowPoint(int r) const
    {
        const BoardGeometry g = board->boardGeometry();
        return QPoint(50, g.headerH + (r - board->verticalScroll()) * g.rowH + g.rowH / 2);
    }
    void sendWheel(QWidget *target, int delta, Qt::KeyboardModifiers keys)
    {
        const QPointF pos(100, 100);
        QWheelEvent event(pos, target->mapToGlobal(pos), QPoint(), QPoint(0, delta), Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(target, &event);
        QVERIFY(event.isAccepted());
    }

    ScheduleDocument *doc = nullptr;
    RememberingPrompter *prompter = nullptr;
    Settings *settings = nullptr;
    QWidget *host = nullptr;
    BoardView *board = nullptr;
};

TB_TEST_MAIN(TestBoardView)
#include "tst_boardview.moc"
