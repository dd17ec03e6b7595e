#include "ui/breakdown/TfrmStrip.h"

#include "ui_TfrmStrip.h"

#include "ui/breakdown/DialogMetrics.h"
#include "ui/breakdown/TfrmAddElement.h"

#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"
#include "document/Settings.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QHeaderView>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QShowEvent>
#include <QWidgetAction>

namespace tb {

namespace {

constexpr int GridColumns = 15;
constexpr int GridRows = 199; // under the heading row: 200 rows in all
constexpr int GridColumnWidth = 85;

const QString SceneChangeWarning =
    QStringLiteral("You have made changes to this scene. Do you wish to save them before you proceed?");
const QString RememberChoice = QStringLiteral("&Remember my choice and don't ask again.");

int categoryOf(const ElementRecord &element)
{
    return legacy::StrToIntDef(element[ElementField::CategoryNumber], 0);
}

QString menuText(QString text)
{
    return text.replace(u'&', QLatin1String("&&"));
}

} // namespace

const QString TfrmStrip::HelpPage = QStringLiteral("scene-breakdown.html");

TfrmStrip::TfrmStrip(ScheduleDocument &doc, Settings &settings, QWidget *parent)
    : DialogWithHelp(QString(HelpPage), parent)
    , m_doc(doc)
    , m_settings(settings)
    , m_ui(std::make_unique<Ui::TfrmStrip>())
{
    m_ui->setupUi(this);

    QTableWidget *grid = m_ui->ElGrid;
    grid->setColumnCount(GridColumns);
    grid->setRowCount(GridRows);
    grid->verticalHeader()->hide();
    grid->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grid->verticalHeader()->setDefaultSectionSize(std::max(16, fontMetrics().height() + 2));
    grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grid->horizontalHeader()->setDefaultSectionSize(ScaledWidth(this, GridColumnWidth));
    grid->horizontalHeader()->setHighlightSections(false);
    QFont bold = grid->horizontalHeader()->font();
    bold.setBold(true);
    grid->horizontalHeader()->setFont(bold);
    grid->viewport()->installEventFilter(this);

    m_popup = new QMenu(this);
    m_popup->setObjectName(QStringLiteral("ElPopup"));
    // Closing the menu, by a choice or not, shows the grid afresh.
    connect(m_popup, &QMenu::aboutToHide, this, &TfrmStrip::RefreshLists);

    connect(m_ui->OKBut, &QPushButton::clicked, this, &TfrmStrip::OKButClick);
    connect(m_ui->AddContBut, &QPushButton::clicked, this, &TfrmStrip::AddContButClick);
    connect(m_ui->CancelBut, &QPushButton::clicked, this, &TfrmStrip::CancelButClick);
    connect(m_ui->NextBut, &QPushButton::clicked, this, &TfrmStrip::NextButClick);
    connect(m_ui->PrevBut, &QPushButton::clicked, this, &TfrmStrip::PrevButClick);

    connect(m_ui->SceneEdit, &QLineEdit::textChanged, this, &TfrmStrip::SceneEditChange);
    connect(m_ui->PageNumEdit, &QLineEdit::textChanged, this, &TfrmStrip::SceneEditChange);
    connect(m_ui->SeqEdit, &QLineEdit::textChanged, this, &TfrmStrip::SceneEditChange);
    connect(m_ui->DescEdit, &QLineEdit::textChanged, this, &TfrmStrip::SceneEditChange);
    connect(m_ui->WholeSpin, &QSpinBox::valueChanged, this, &TfrmStrip::SceneEditChange);
    connect(m_ui->EightsSpin, &QSpinBox::valueChanged, this, &TfrmStrip::SceneEditChange);
    connect(m_ui->IntExtRadio, &QComboBox::currentIndexChanged, this, &TfrmStrip::SceneEditChange);
    connect(m_ui->TimeRadio, &QComboBox::currentIndexChanged, this, &TfrmStrip::SceneEditChange);
    connect(m_ui->LocEdit, &QComboBox::editTextChanged, this, &TfrmStrip::SceneEditChange);
    connect(m_ui->SetEdit, &QComboBox::editTextChanged, this, &TfrmStrip::SceneEditChange);
    connect(m_ui->NotesMemo, &QPlainTextEdit::textChanged, this, &TfrmStrip::SceneEditChange);
}

TfrmStrip::~TfrmStrip() = default;

void TfrmStrip::setElementDialog(TfrmAddElement *dialog)
{
    m_elementDialog = dialog;
}

TfrmAddElement *TfrmStrip::elementDialog()
{
    if (!m_elementDialog)
        m_elementDialog = new TfrmAddElement(m_doc, this);
    return m_elementDialog;
}

QMenu *TfrmStrip::elementPopup() const
{
    return m_popup;
}

int TfrmStrip::mode() const
{
    return editMode;
}

void TfrmStrip::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        FormShow();
    QDialog::showEvent(event);
}

bool TfrmStrip::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->ElGrid->viewport() && event->type() == QEvent::MouseButtonRelease) {
        auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() == Qt::RightButton) {
            ElGridMouseUp(mouse->position().toPoint(), mouse->globalPosition().toPoint());
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void TfrmStrip::FormShow()
{
    RebuildPickLists(m_doc);
    refreshPickLists();
    DoTempAssignments();
    const bool inserting = mode() == SceneMode::Insert;
    m_ui->AddContBut->setEnabled(!inserting);
    m_ui->CancelBut->setText(QStringLiteral("Cancel"));
    m_ui->OKBut->setEnabled(true);
    m_ui->PrevBut->setEnabled(currentStrip > 1 && !inserting);
    m_ui->NextBut->setEnabled(currentStrip < m_doc.strips.count() && !inserting);
    FillPage();
}

void TfrmStrip::refreshPickLists()
{
    // The lists are the document's; the texts being typed stay as they are.
    const struct
    {
        QComboBox *box;
        const QStringList &items;
    } lists[] = {{m_ui->LocEdit, m_doc.locationPickList}, {m_ui->SetEdit, m_doc.setPickList}};
    for (const auto &list : lists) {
        const QString text = list.box->currentText();
        const QSignalBlocker blocker(list.box);
        list.box->clear();
        list.box->addItems(list.items);
        list.box->setEditText(text);
    }
}

void TfrmStrip::DoTempAssignments()
{
    m_flags = SceneAssignmentFlags(m_doc, mode(), currentStrip);
}

void TfrmStrip::ClearAllData()
{
    setPage(BlankScenePage());
    m_ui->SceneEdit->setFocus();
}

void TfrmStrip::FillPage()
{
    ClearAllData();
    setWindowTitle(SceneCaption(m_doc, mode(), currentStrip));
    if (mode() == SceneMode::Edit && currentStrip >= 1 && currentStrip <= m_doc.strips.count())
        setPage(ScenePageFromStrip(m_doc.strips[currentStrip], linesPerPage));
    RefreshLists();
}

void TfrmStrip::setPage(const ScenePage &page)
{
    m_ui->SceneEdit->setText(page.scene);
    m_ui->SeqEdit->setText(page.sequence);
    m_ui->LocEdit->setEditText(page.location);
    m_ui->SetEdit->setEditText(page.set);
    m_ui->PageNumEdit->setText(page.scriptPage);
    m_ui->DescEdit->setText(page.synopsis);
    m_ui->NotesMemo->setPlainText(MemoText(page.notes));
    m_ui->TimeRadio->setCurrentIndex(page.time);
    m_ui->IntExtRadio->setCurrentIndex(page.intExt);
    m_ui->WholeSpin->setValue(page.whole);
    m_ui->EightsSpin->setValue(page.eighths);
}

ScenePage TfrmStrip::gatherPage() const
{
    ScenePage page;
    page.scene = m_ui->SceneEdit->text();
    page.scriptPage = m_ui->PageNumEdit->text();
    page.whole = m_ui->WholeSpin->value();
    page.eighths = m_ui->EightsSpin->value();
    page.intExt = m_ui->IntExtRadio->currentIndex();
    page.time = m_ui->TimeRadio->currentIndex();
    page.location = m_ui->LocEdit->currentText();
    page.set = m_ui->SetEdit->currentText();
    page.sequence = m_ui->SeqEdit->text();
    page.synopsis = m_ui->DescEdit->text();
    page.notes = MemoLines(m_ui->NotesMemo->toPlainText());
    return page;
}

void TfrmStrip::RefreshLists()
{
    QTableWidget *grid = m_ui->ElGrid;
    QStringList headings;
    for (int c = 0; c < GridColumns; ++c)
        headings.append(c < m_doc.categoryCount() ? m_doc.categories.at(c).name : QString());
    grid->setHorizontalHeaderLabels(headings);
    grid->clearContents();
    QList<int> rows(GridColumns, 0);
    const int count = std::min<int>(m_doc.elements.count(), int(m_flags.size()) - 1);
    for (int j = 1; j <= count; ++j) {
        if (!m_flags.at(j))
            continue;
        const int column = categoryOf(m_doc.elements[j]) - 1;
        if (column < 0 || column >= GridColumns || rows.at(column) >= GridRows)
            continue;
        grid->setItem(rows[column]++, column, new QTableWidgetItem(m_doc.elements[j][ElementField::Description]));
    }
    // Columns widen for long names, within reason.
    const int base = ScaledWidth(this, GridColumnWidth);
    for (int c = 0; c < GridColumns; ++c) {
        grid->resizeColumnToContents(c);
        grid->setColumnWidth(c, std::clamp(grid->columnWidth(c), base, 2 * base));
    }
    m_changed = false;
}

void TfrmStrip::ElGridMouseUp(const QPoint &pos, const QPoint &globalPos)
{
    const int category = m_ui->ElGrid->columnAt(pos.x()) + 1;
    elementDialog()->currentCategory = category;

    m_popup->clear();
    m_popupMap.clear();
    auto *panel = new QWidget;
    panel->setObjectName(QStringLiteral("ElPopupItems"));
    auto *layout = new QGridLayout(panel);
    layout->setContentsMargins(6, 4, 6, 4);
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(2);
    for (int j = 1; j <= m_doc.elements.count(); ++j) {
        const ElementRecord &element = m_doc.elements[j];
        if (categoryOf(element) != category)
            continue;
        const int item = int(m_popupMap.size());
        auto *box = new QCheckBox(menuText(element[ElementField::Description]), panel);
        box->setChecked(j < m_flags.size() && m_flags.at(j));
        // A new column every 25 items.
        layout->addWidget(box, item % PopupColumnLength, item / PopupColumnLength);
        connect(box, &QCheckBox::clicked, this, [this, item](bool checked) { ElPopupToggle(item, checked); });
        m_popupMap.append(j);
    }
    const int items = int(m_popupMap.size());
    const int columns = std::max(1, (items + PopupColumnLength - 1) / PopupColumnLength);
    int row = std::min(items, PopupColumnLength);
    if (items > 0) {
        auto *separator = new QFrame(panel);
        separator->setFrameShape(QFrame::HLine);
        separator->setFrameShadow(QFrame::Sunken);
        layout->addWidget(separator, row++, 0, 1, columns);
    }
    auto *addNew = new QPushButton(QStringLiteral("Add new..."), panel);
    addNew->setObjectName(QStringLiteral("ElPopupAddNew"));
    addNew->setFlat(true);
    addNew->setAutoDefault(false);
    addNew->setStyleSheet(QStringLiteral("text-align: left; padding: 2px 4px;"));
    layout->addWidget(addNew, row, 0, 1, columns);
    connect(addNew, &QPushButton::clicked, this, &TfrmStrip::ElPopupAddNew);

    auto *action = new QWidgetAction(m_popup);
    action->setDefaultWidget(panel);
    m_popup->addAction(action);
    m_popup->popup(globalPos - QPoint(10, 5));
}

void TfrmStrip::ElPopupToggle(int item, bool checked)
{
    // Only the editor's flag changes; the strip is written when it is saved. A toggle
    // does not count as a change of the page.
    if (item >= 0 && item < m_popupMap.size()) {
        const int element = m_popupMap.at(item);
        if (element >= m_flags.size())
            m_flags.resize(element + 1, false);
        m_flags[element] = checked;
    }
    m_popup->hide();
}

void TfrmStrip::ElPopupAddNew()
{
    m_popup->hide();
    TfrmAddElement *dialog = elementDialog();
    dialog->editIndex = -1;
    dialog->exec();
    // The last element of the table is flagged whether or not the dialog added one:
    // after Cancel that is the last element that already existed. Kept as it always was.
    const int last = m_doc.elements.count();
    m_flags.resize(last + 1, false);
    m_flags[last] = true;
    RefreshLists();
    m_changed = true;
}

void TfrmStrip::SceneEditChange()
{
    m_changed = true;
}

void TfrmStrip::OKButClick()
{
    // The dialog closes even when the save is refused for want of length, with the
    // undo snapshot already taken; that is how it has always behaved.
    (void)SaveScene(m_doc, mode(), currentStrip, gatherPage(), m_flags);
    accept();
}

void TfrmStrip::AddContButClick()
{
    (void)ApplyScene(m_doc, mode(), currentStrip, gatherPage(), m_flags);
    refreshPickLists();
    m_ui->CancelBut->setText(QStringLiteral("Close"));
    m_ui->OKBut->setEnabled(false);
}

void TfrmStrip::CancelButClick()
{
    reject();
}

void TfrmStrip::NextButClick()
{
    stepStrip(1);
}

void TfrmStrip::PrevButClick()
{
    stepStrip(-1);
}

void TfrmStrip::stepStrip(int direction)
{
    if (m_changed) {
        Prompt prompt;
        prompt.kind = MessageKind::Warning;
        prompt.text = SceneChangeWarning;
        prompt.buttons = Buttons::YesNo;
        prompt.checkBoxText = RememberChoice;
        const std::optional<PromptReply> reply =
            AskUnlessRemembered(m_doc.prompter(), m_settings, RememberedWarning::SceneChange, prompt);
        // A remembered answer skips the question and saves, as Yes would.
        if (!reply || reply->answer == Answer::Yes)
            AddContButClick();
    }
    m_changed = false;

    const SceneStep step = StepToScene(m_doc, currentStrip, direction);
    currentStrip = step.index;
    if (step.found) {
        FillPage();
        DoTempAssignments();
        RefreshLists();
    }
    QPushButton *forward = direction > 0 ? m_ui->NextBut : m_ui->PrevBut;
    QPushButton *back = direction > 0 ? m_ui->PrevBut : m_ui->NextBut;
    if (step.atLimit)
        forward->setEnabled(false);
    back->setEnabled(true);
}

} // namespace tb
