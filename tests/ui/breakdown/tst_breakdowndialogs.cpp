#include "DialogTestSupport.h"

#include "document/Settings.h"
#include "ui/breakdown/TfrmAddElement.h"
#include "ui/breakdown/TfrmConform.h"
#include "ui/breakdown/TfrmProdInfo.h"
#include "ui/breakdown/TfrmSort.h"
#include "ui/breakdown/TfrmStrip.h"

#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>

#include <memory>

using namespace tb;
using namespace tb::test;

namespace {

void click(QWidget &parent, const char *button)
{
    QTest::mouseClick(Child<QPushButton>(parent, button), Qt::LeftButton);
}

// Right-clicks the element grid in the given category column.
QMenu *openPopup(TfrmStrip &dialog, int column)
{
    auto *grid = Child<QTableWidget>(dialog, "ElGrid");
    grid->scrollTo(grid->model()->index(0, column));
    const QPoint pos = grid->visualRect(grid->model()->index(0, column)).center();
    QTest::mouseClick(grid->viewport(), Qt::RightButton, {}, pos);
    return dialog.elementPopup();
}

QCheckBox *popupItem(QMenu *menu, const QString &text)
{
    for (QCheckBox *box : menu->findChildren<QCheckBox *>()) {
        if (box->text() == text)
            return box;
    }
    qFatal("no pop-up item %s", qPrintable(text));
    return nullptr;
}

QStringList column(QTableWidget *grid, int c)
{
    QStringList out;
    for (int r = 0; r < grid->rowCount(); ++r) {
        if (const QTableWidgetItem *item = grid->item(r, c); item && !item->text().isEmpty())
            out.append(item->text());
    }
    return out;
}

} // namespace

class TestBreakdownDialogs : public QObject
{
    Q_OBJECT

    // Every test starts from a fresh document answered by a fresh prompter.
    std::unique_ptr<ScheduleDocument> docp;
    std::unique_ptr<RememberingPrompter> prompter;
    std::unique_ptr<Settings> settingsp;
    std::unique_ptr<TfrmStrip> sceneDialog;
    std::unique_ptr<TfrmAddElement> elementDialog;

    // Scenes 1..3 with a divider after the last, and six elements: three cast, two props,
    // one extra. Scene 2 holds cast 1 and the first prop.
    ScheduleDocument &small()
    {
        ScheduleDocument &doc = *docp;
        AddScene(doc, "1", "1");
        AddScene(doc, "2", "0.5");
        AddScene(doc, "3", "1");
        AddDivider(doc);
        AddElement(doc, "ANNA", 1, "1");
        AddElement(doc, "BEN", 1, "2");
        AddElement(doc, "CORA", 1, "3");
        AddElement(doc, "LAMP", 5, "Prp");
        AddElement(doc, "VASE", 5, "Prp");
        AddElement(doc, "CROWD", 2, "Ext");
        doc.strips[2].set(StripField::Assignments, "1,4");
        doc.strips[2].set(StripField::Location, "BARN");
        return doc;
    }

    // Shows the scene editor in the mode on the strip.
    TfrmStrip &openScene(int mode, int current)
    {
        sceneDialog = std::make_unique<TfrmStrip>(*docp, *settingsp);
        sceneDialog->editMode = mode;
        sceneDialog->currentStrip = current;
        sceneDialog->show();
        return *sceneDialog;
    }
    // Shows the element dialog on the small schedule for the element (-1: a new one).
    TfrmAddElement &openElement(int editIndex)
    {
        elementDialog = std::make_unique<TfrmAddElement>(small());
        elementDialog->editIndex = editIndex;
        elementDialog->show();
        return *elementDialog;
    }

private Q_SLOTS:
    void init()
    {
        docp = std::make_unique<ScheduleDocument>();
        prompter = std::make_unique<RememberingPrompter>();
        docp->setPrompter(prompter.get());
        QFile::remove(TempPath("breakdown.ini"));
        settingsp = std::make_unique<Settings>(TempPath("breakdown.ini"));
    }
    void cleanup()
    {
        sceneDialog.reset();
        elementDialog.reset();
        docp.reset();
    }
    void sceneEditorShowsTheStrip()
    {
        ScheduleDocument &doc = small();
        doc.strips[2].set(StripField::StripId, "17");
        TfrmStrip &dialog = openScene(SceneMode::Edit, 2);
        QCOMPARE(dialog.windowTitle(), "Edit scene breakdown #17");
        QCOMPARE(Child<QLineEdit>(dialog, "SceneEdit")->text(), "2");
        QCOMPARE(Child<QSpinBox>(dialog, "EightsSpin")->value(), 4);
        QCOMPARE(Child<QComboBox>(dialog, "LocEdit")->currentText(), "BARN");
        auto *grid = Child<QTableWidget>(dialog, "ElGrid");
        QCOMPARE(column(grid, 0), QStringList{"ANNA"});
        QCOMPARE(column(grid, 4), QStringList{"LAMP"});

        // A toggle in the pop-up is no change: Next asks nothing and the toggle is lost.
        QMenu *menu = openPopup(dialog, 0);
        QVERIFY(menu->isVisible());
        QCOMPARE(menu->findChildren<QCheckBox *>().size(), 3);
        QVERIFY(popupItem(menu, "ANNA")->isChecked());
        QTest::mouseClick(popupItem(menu, "BEN"), Qt::LeftButton);
        QVERIFY(!menu->isVisible());
        QCOMPARE(column(grid, 0), QStringList({"ANNA", "BEN"}));
        QVERIFY(!dialog.isChanged());
        click(dialog, "NextBut");
        QVERIFY(prompter->prompts.isEmpty());
        QCOMPARE(dialog.currentStrip, 3);
        click(dialog, "PrevBut");
        QCOMPARE(column(grid, 0), QStringList{"ANNA"});
    }
    void popupToggleSavedByOk()
    {
        ScheduleDocument &doc = small();
        TfrmStrip &dialog = openScene(SceneMode::Edit, 2);
        QTest::mouseClick(popupItem(openPopup(dialog, 0), "CORA"), Qt::LeftButton);
        QTest::mouseClick(popupItem(openPopup(dialog, 4), "LAMP"), Qt::LeftButton); // off again
        click(dialog, "OKBut");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(doc.strips[2][StripField::Assignments], "1,3");
    }
    void popupBreaksIntoColumns()
    {
        ScheduleDocument &doc = *docp;
        AddScene(doc, "1", "1");
        for (int i = 1; i <= 30; ++i)
            AddElement(doc, QStringLiteral("PROP %1").arg(i), 5, "Prp");
        TfrmStrip &dialog = openScene(SceneMode::Edit, 1);
        QMenu *menu = openPopup(dialog, 4);
        const QPoint first = popupItem(menu, "PROP 1")->pos();
        const QPoint last = popupItem(menu, "PROP 25")->pos();
        const QPoint next = popupItem(menu, "PROP 26")->pos();
        QCOMPARE(last.x(), first.x());
        QVERIFY(last.y() > first.y());
        QVERIFY(next.x() > first.x());
        QCOMPARE(next.y(), first.y());
        menu->hide();

        // An empty category offers "Add new..." alone.
        menu = openPopup(dialog, 6);
        QVERIFY(menu->findChildren<QCheckBox *>().isEmpty());
        QCOMPARE(dialog.elementDialog()->currentCategory, 7);
        menu->hide();
    }
    void editedFieldWarnsOnNext_data()
    {
        Columns<Answer, bool, QString>("answer", "remember", "synopsis");
        Row("Yes saves", Answer::Yes, false, "Changed");
        Row("No drops", Answer::No, false, "");
        // Remembered, the question is asked no more and the answer saves as Yes did.
        Row("remembered", Answer::Yes, true, "Changed");
    }
    void editedFieldWarnsOnNext()
    {
        auto [answer, remember] = Fetch<Answer, bool>("answer", "remember");
        ScheduleDocument &doc = small();
        TfrmStrip &dialog = openScene(SceneMode::Edit, 1);
        QTest::keyClicks(Child<QLineEdit>(dialog, "DescEdit"), "Changed");
        QVERIFY(dialog.isChanged());
        prompter->answers = {answer};
        prompter->tickRemember = remember;
        click(dialog, "NextBut");
        QCOMPARE(prompter->prompts.size(), 1);
        QCOMPARE(prompter->prompts[0].text,
                 "You have made changes to this scene. Do you wish to save them before you proceed?");
        QCOMPARE(prompter->prompts[0].checkBoxText, "&Remember my choice and don't ask again.");
        QCOMPARE(prompter->prompts[0].buttons, Buttons::YesNo);
        QTEST(doc.strips[1][StripField::Synopsis], "synopsis");
        QCOMPARE(dialog.currentStrip, 2);
        QVERIFY(!dialog.isChanged());
        QCOMPARE(settingsp->skipWarning(RememberedWarning::SceneChange), remember);
        if (remember) {
            QTest::keyClicks(Child<QLineEdit>(dialog, "DescEdit"), "Two");
            click(dialog, "NextBut");
            QCOMPARE(prompter->prompts.size(), 1);
            QCOMPARE(doc.strips[2][StripField::Synopsis], "Two");
        }
    }
    void nextStopsAtTheLastStrip()
    {
        AddDivider(small());
        TfrmStrip &dialog = openScene(SceneMode::Edit, 3);
        click(dialog, "NextBut");
        QCOMPARE(dialog.currentStrip, 5);
        QVERIFY(!Child<QPushButton>(dialog, "NextBut")->isEnabled());
        QCOMPARE(Child<QLineEdit>(dialog, "SceneEdit")->text(), "3"); // the page still shows scene 3
        click(dialog, "PrevBut");
        QCOMPARE(dialog.currentStrip, 3);
        QVERIFY(Child<QPushButton>(dialog, "NextBut")->isEnabled());
    }
    void insertModeDisablesApplyAndStepping()
    {
        ScheduleDocument &doc = small();
        TfrmStrip &dialog = openScene(SceneMode::Insert, 2);
        QCOMPARE(dialog.windowTitle(), "New scene breakdown #4");
        QVERIFY(!Child<QPushButton>(dialog, "AddContBut")->isEnabled());
        QVERIFY(!Child<QPushButton>(dialog, "PrevBut")->isEnabled());
        QVERIFY(!Child<QPushButton>(dialog, "NextBut")->isEnabled());
        QTest::keyClicks(Child<QLineEdit>(dialog, "SceneEdit"), "1A");
        click(dialog, "OKBut");
        QCOMPARE(doc.strips[2][StripField::SceneNumber], "1A");
    }
    void applyInAddModeAppendsAgain()
    {
        ScheduleDocument &doc = small();
        TfrmStrip &dialog = openScene(SceneMode::Add, 0);
        QTest::keyClicks(Child<QLineEdit>(dialog, "SceneEdit"), "9");
        auto *locations = Child<QComboBox>(dialog, "LocEdit");
        locations->setEditText("HARBOUR");
        click(dialog, "AddContBut");
        click(dialog, "AddContBut");
        QCOMPARE(doc.strips.count(), 6);
        QCOMPARE(doc.strips[6][StripField::SceneNumber], "9");
        QCOMPARE(Child<QPushButton>(dialog, "CancelBut")->text(), "Close");
        QVERIFY(!Child<QPushButton>(dialog, "OKBut")->isEnabled());
        QVERIFY(locations->findText("HARBOUR") >= 0);
        QCOMPARE(locations->currentText(), "HARBOUR");
        click(dialog, "CancelBut");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(doc.strips.count(), 6);
    }
    // The refused scene loses nothing: the dialog stays open with what was typed.
    void zeroLengthKeepsTheDialogOpen()
    {
        ScheduleDocument &doc = small();
        TfrmStrip &dialog = openScene(SceneMode::Add, 0);
        Child<QLineEdit>(dialog, "SceneEdit")->setText("77");
        Child<QSpinBox>(dialog, "EightsSpin")->setValue(0);
        click(dialog, "OKBut");
        QVERIFY(dialog.isVisible());
        QCOMPARE(Child<QLineEdit>(dialog, "SceneEdit")->text(), "77");
        QCOMPARE(prompter->prompts.size(), 1);
        click(dialog, "AddContBut"); // Apply refuses the same way
        QVERIFY(dialog.isVisible());
        QCOMPARE(doc.strips.count(), 4);
        // One undo step, for the accepted scene only.
        Child<QSpinBox>(dialog, "EightsSpin")->setValue(3);
        click(dialog, "OKBut");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(doc.undo.UndoDepth, 1);
        QCOMPARE(doc.strips[5][StripField::SceneNumber], "77");
    }
    void addNewThenCancelFlagsTheLastElement()
    {
        ScheduleDocument &doc = small();
        TfrmStrip &dialog = openScene(SceneMode::Edit, 1);
        QMenu *menu = openPopup(dialog, 0); // the cast column
        clickInModal("CancelBut");
        QTest::mouseClick(menu->findChild<QPushButton *>("ElPopupAddNew"), Qt::LeftButton);
        QCOMPARE(doc.elements.count(), 6);
        // The table's last element, CROWD, is now flagged for this strip.
        QCOMPARE(column(Child<QTableWidget>(dialog, "ElGrid"), 1), QStringList{"CROWD"});
        QVERIFY(dialog.isChanged());
        click(dialog, "OKBut");
        QCOMPARE(doc.strips[1][StripField::Assignments], "6");
    }
    void applyNextTwice()
    {
        TfrmAddElement &dialog = openElement(-1);
        QCOMPARE(Child<QLineEdit>(dialog, "IDEdit")->text(), "4");
        QVERIFY(Child<QCheckBox>(dialog, "ShowCheck")->isChecked());
        QTest::keyClicks(Child<QLineEdit>(dialog, "ElName"), "DORA");
        Child<QCheckBox>(dialog, "SAGCheck")->setChecked(true);
        Child<QListWidget>(dialog, "AssignList")->item(2)->setCheckState(Qt::Checked);
        click(dialog, "AddContBut");
        QCOMPARE(Child<QLineEdit>(dialog, "ElName")->text(), "");
        QCOMPARE(Child<QLineEdit>(dialog, "IDEdit")->text(), "5");
        QTest::keyClicks(Child<QLineEdit>(dialog, "ElName"), "EVE");
        click(dialog, "AddContBut");
        const ScheduleDocument &doc = *docp;
        QCOMPARE(doc.elements.count(), 8);
        QCOMPARE(doc.elements[7][ElementField::Description], "DORA");
        QCOMPARE(doc.elements[8][ElementField::BoardId], "5");
        QCOMPARE(doc.elements[8][ElementField::HoldRule], "SAG");
        QCOMPARE(doc.strips[3][StripField::Assignments], "7");
        QCOMPARE(Child<QPushButton>(dialog, "CancelBut")->text(), "Close");
        QVERIFY(!Child<QPushButton>(dialog, "OKBut")->isEnabled());

        // Shown again, the dialog starts afresh, but for the hold rule box, which is not
        // reset for a new element, as in the earlier edition.
        click(dialog, "CancelBut");
        dialog.show();
        QCOMPARE(Child<QPushButton>(dialog, "CancelBut")->text(), "Cancel");
        QVERIFY(Child<QPushButton>(dialog, "OKBut")->isEnabled());
        QVERIFY(Child<QCheckBox>(dialog, "SAGCheck")->isChecked());
    }
    void editElement()
    {
        TfrmAddElement &dialog = openElement(4); // LAMP, a prop in scene 2
        QCOMPARE(dialog.windowTitle(), "Edit element \"LAMP\"");
        QVERIFY(!Child<QPushButton>(dialog, "AddContBut")->isEnabled());
        auto *categories = Child<QComboBox>(dialog, "CatCombo");
        QCOMPARE(categories->currentIndex(), 4);
        QCOMPARE(Child<QLineEdit>(dialog, "IDEdit")->text(), "Prp");
        QVERIFY(!Child<QCheckBox>(dialog, "ShowCheck")->isChecked());
        auto *list = Child<QListWidget>(dialog, "AssignList");
        QCOMPARE(list->count(), 3);
        QCOMPARE(list->item(1)->checkState(), Qt::Checked);
        list->item(1)->setCheckState(Qt::Unchecked);
        list->item(0)->setCheckState(Qt::Checked);
        // Made a cast member, it gets the next cast number.
        categories->setFocus();
        while (categories->currentIndex() > 0)
            QTest::keyClick(categories, Qt::Key_Up);
        QCOMPARE(Child<QLineEdit>(dialog, "IDEdit")->text(), "4");
        QVERIFY(Child<QCheckBox>(dialog, "ShowCheck")->isChecked());
        // The number of another cast member: asked, and No keeps the dialog open.
        Child<QLineEdit>(dialog, "IDEdit")->setText("3");
        prompter->answers = {Answer::No};
        click(dialog, "OKBut");
        QVERIFY(dialog.isVisible());
        QCOMPARE(prompter->prompts.size(), 1);
        const ScheduleDocument &doc = *docp;
        QCOMPARE(doc.elements[4][ElementField::BoardId], "Prp");
        click(dialog, "OKBut"); // Yes this time
        QVERIFY(!dialog.isVisible());
        QCOMPARE(doc.elements[4][ElementField::CategoryNumber], "1");
        QCOMPARE(doc.elements[4][ElementField::BoardId], "3");
        QCOMPARE(doc.elements[4][ElementField::PrintOnBoard], "1");
        QCOMPARE(doc.strips[1][StripField::Assignments], "4");
        QCOMPARE(doc.strips[2][StripField::Assignments], "1");
    }
    // Abort in the divider warning still sorts, as in the earlier edition.
    void sortDialog()
    {
        ScheduleDocument &doc = *docp;
        const QStringList scenes{"10", "2", "1"}, locations{"PIER", "BARN", "ATTIC"};
        for (int i = 0; i < 3; ++i) {
            doc.strips[AddScene(doc, scenes[i], "1")].set(StripField::Location, locations[i]);
            if (i == 0)
                AddDivider(doc);
        }
        TfrmSort dialog(doc);
        dialog.show();
        QVERIFY(!Child<QPushButton>(dialog, "OKBut")->isEnabled());
        QVERIFY(!Child<QPushButton>(dialog, "UnSortBut")->isEnabled());
        auto *grid = Child<QTableWidget>(dialog, "SortGrid");
        QCOMPARE(column(grid, 2), QStringList({"PIER", "BARN", "ATTIC"}));
        click(dialog, "SortBut");
        QCOMPARE(column(grid, 2), QStringList({"ATTIC", "BARN", "PIER"}));
        QVERIFY(Child<QPushButton>(dialog, "OKBut")->isEnabled());
        click(dialog, "UnSortBut");
        QCOMPARE(column(grid, 2), QStringList({"PIER", "BARN", "ATTIC"}));
        QVERIFY(!Child<QPushButton>(dialog, "OKBut")->isEnabled());
        Child<QComboBox>(dialog, "HighCombo")->setCurrentIndex(1); // Scene number
        click(dialog, "SortBut");
        QCOMPARE(column(grid, 1), QStringList({"1", "2", "10"}));
        prompter->answers = {Answer::Abort};
        click(dialog, "OKBut");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QCOMPARE(Kinds(doc), "1 1 1");
        QCOMPARE(doc.strips[1][StripField::SceneNumber], "1");
        QCOMPARE(doc.strips[3][StripField::SceneNumber], "10");
    }
    void conformDialog()
    {
        ScheduleDocument &doc = small();
        TfrmConform dialog(doc);
        dialog.show();
        auto *entry = Child<QLineEdit>(dialog, "ConformEdit");
        for (const char *text : {"3", "+", "1", "*Travel", "7"}) {
            entry->setText(text);
            QTest::keyClick(entry, Qt::Key_Return);
            QVERIFY(dialog.isVisible()); // Enter makes an entry, it does not close the dialog
        }
        QCOMPARE(entry->text(), "");
        QCOMPARE(prompter->prompts.size(), 1); // "7" is no strip
        auto *grid = Child<QTableWidget>(dialog, "ConformGrid");
        QCOMPARE(grid->rowCount(), 5);
        QVERIFY(grid->isColumnHidden(2));
        QCOMPARE(grid->item(1, 0)->background().color(), QColor(Qt::black));
        QCOMPARE(grid->item(3, 0)->background().color(), QColor(0xEF, 0x6F, 0x00));

        // Delete the empty line the refused entry left, then the divider.
        grid->setFocus();
        grid->setCurrentCell(4, 0);
        QTest::keyClick(grid, Qt::Key_Delete);
        grid->setCurrentCell(1, 0);
        QTest::keyClick(grid, Qt::Key_Delete);
        QCOMPARE(grid->rowCount(), 3);

        prompter->answers = {Answer::No};
        click(dialog, "OKBut");
        QVERIFY(dialog.isVisible());
        prompter->answers = {Answer::Yes};
        click(dialog, "OKBut");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(Kinds(doc), "1 1 4");
        QCOMPARE(doc.strips[1][StripField::SceneNumber], "3");
    }
    void productionDetails()
    {
        ScheduleDocument &doc = *docp;
        doc.values.PictureTitle = "Rain";
        doc.values.CompanyAddress = "\"1 Quay St\",Islay";
        doc.crew[2].set(CrewField::Name, "Lo");
        doc.values.LogoFile = TempPath("gone.png");
        TfrmProdInfo dialog(doc);
        dialog.show();
        QCOMPARE(prompter->prompts.size(), 1); // the broken link, worded in the core's tests
        QCOMPARE(Child<QLineEdit>(dialog, "TitleEdit")->text(), "Rain");
        QCOMPARE(Child<QPlainTextEdit>(dialog, "MiscMemo")->toPlainText(), "1 Quay St\nIslay");
        auto *crew = Child<QTableWidget>(dialog, "CrewGrid");
        QCOMPARE(crew->item(1, 1)->text(), "Lo");

        // A chosen picture shows; a chosen file that is no picture is still taken over by OK.
        const QString logo = TempPath("logo.jpg");
        QImage picture(60, 30, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        QVERIFY(picture.save(logo));
        dialog.loadChosenLogo(logo);
        QVERIFY(!Child<QLabel>(dialog, "Image1")->pixmap().isNull());
        const QString text = TempPath("notes.jpg");
        QVERIFY(WriteBytes(text, "not a picture"));
        dialog.loadChosenLogo(text);
        QCOMPARE(prompter->prompts.size(), 2);

        Child<QLineEdit>(dialog, "TitleEdit")->setText("Storm");
        Child<QPlainTextEdit>(dialog, "MiscMemo")->setPlainText("a\nb, c\nd");
        crew->item(49, 0)->setText("Runner");
        crew->item(1, 1)->setText("");
        click(dialog, "OKBut");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(doc.values.PictureTitle, "Storm");
        QCOMPARE(doc.values.CompanyAddress, "a,\"b, c\",d");
        QCOMPARE(doc.crew[50][CrewField::Position], "Runner");
        QCOMPARE(doc.crew[2][CrewField::Name], "");
        QCOMPARE(doc.values.LogoFile, text);
    }
};

TB_TEST_MAIN(TestBreakdownDialogs)
#include "tst_breakdowndialogs.moc"
