#include "ui/breakdown/TfrmAddElement.h"

#include "ui_TfrmAddElement.h"

#include "breakdown/SceneEditing.h"

#include "document/ScheduleDocument.h"

#include <QShowEvent>

namespace tb {

const QString TfrmAddElement::HelpPage = QStringLiteral("element.html");

TfrmAddElement::TfrmAddElement(ScheduleDocument &doc, QWidget *parent)
    : DialogWithHelp(QString(HelpPage), parent)
    , m_doc(doc)
    , m_ui(std::make_unique<Ui::TfrmAddElement>())
{
    m_ui->setupUi(this);
    connect(m_ui->OKBut, &QPushButton::clicked, this, &TfrmAddElement::OKButClick);
    connect(m_ui->AddContBut, &QPushButton::clicked, this, &TfrmAddElement::AddContButClick);
    connect(m_ui->CancelBut, &QPushButton::clicked, this, &TfrmAddElement::CancelButClick);
    // Only a choice made by the user replaces the ID; filling the form does not.
    connect(m_ui->CatCombo, &QComboBox::activated, this, &TfrmAddElement::CatComboChange);
}

TfrmAddElement::~TfrmAddElement() = default;

void TfrmAddElement::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        FormShow();
    QDialog::showEvent(event);
}

void TfrmAddElement::FormShow()
{
    m_ui->CatCombo->clear();
    for (int c = 0; c < m_doc.categoryCount(); ++c)
        m_ui->CatCombo->addItem(m_doc.categories.at(c).name);

    if (editIndex >= 1 && editIndex <= m_doc.elements.count()) {
        const ElementPage page = ElementPageFromRecord(m_doc.elements[editIndex]);
        setWindowTitle(QStringLiteral("Edit element \"") + page.description + u'"');
        m_ui->AddContBut->setEnabled(false);
        m_ui->ElName->setText(page.description);
        m_ui->ShowCheck->setChecked(page.printOnBoard);
        m_ui->SAGCheck->setChecked(page.holdRule);
        m_ui->IDEdit->setText(page.boardId);
        m_ui->InfoEdit->setPlainText(MemoText(page.otherInfo));
        m_ui->CatCombo->setCurrentIndex(page.categoryPosition < m_doc.categoryCount() ? page.categoryPosition : -1);
        m_ui->NameEdit->setText(page.name);
        fillAssignList(editIndex);
    } else {
        AddAnElement();
    }
    m_ui->CancelBut->setText(QStringLiteral("Cancel"));
    m_ui->OKBut->setEnabled(true);
}

void TfrmAddElement::AddAnElement()
{
    setWindowTitle(QStringLiteral("Add new element"));
    m_ui->ElName->clear();
    m_ui->InfoEdit->clear();
    m_ui->NameEdit->clear();
    m_ui->AddContBut->setEnabled(true);
    fillAssignList(-1);
    if (currentCategory < 1)
        currentCategory = 1;
    m_ui->CatCombo->setCurrentIndex(currentCategory - 1);
    ApplyIdDefault();
    // The hold rule box is not reset: it keeps its state from the last element, as
    // it always has.
    m_ui->ElName->setFocus();
}

void TfrmAddElement::ApplyIdDefault()
{
    const ElementIdDefault id = DoID(m_doc, m_ui->CatCombo->currentIndex());
    m_ui->IDEdit->setText(id.id);
    m_ui->ShowCheck->setChecked(id.printOnBoard);
}

void TfrmAddElement::fillAssignList(int element)
{
    m_lines = AssignListLines(m_doc, element);
    m_ui->AssignList->clear();
    for (const AssignLine &line : std::as_const(m_lines)) {
        auto *item = new QListWidgetItem(line.text, m_ui->AssignList);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(line.assigned ? Qt::Checked : Qt::Unchecked);
    }
}

ElementPage TfrmAddElement::gatherPage() const
{
    ElementPage page;
    page.description = m_ui->ElName->text();
    page.categoryPosition = m_ui->CatCombo->currentIndex();
    page.printOnBoard = m_ui->ShowCheck->isChecked();
    page.boardId = m_ui->IDEdit->text();
    page.name = m_ui->NameEdit->text();
    page.holdRule = m_ui->SAGCheck->isChecked();
    page.otherInfo = MemoLines(m_ui->InfoEdit->toPlainText());
    return page;
}

QList<AssignLine> TfrmAddElement::gatherLines() const
{
    QList<AssignLine> lines = m_lines;
    for (int i = 0; i < lines.size() && i < m_ui->AssignList->count(); ++i)
        lines[i].assigned = m_ui->AssignList->item(i)->checkState() == Qt::Checked;
    return lines;
}

void TfrmAddElement::OKButClick()
{
    if (!ConfirmDuplicateCastId(m_doc, editIndex, m_ui->IDEdit->text())) {
        m_ui->IDEdit->setFocus();
        return;
    }
    if (RecordElement(m_doc, editIndex, gatherPage(), gatherLines()).ok())
        accept();
}

void TfrmAddElement::AddContButClick()
{
    // The duplicate ID question is not asked on this path.
    if (RecordElement(m_doc, editIndex, gatherPage(), gatherLines()).ok())
        FormShow();
    m_ui->CancelBut->setText(QStringLiteral("Close"));
    m_ui->OKBut->setEnabled(false);
}

void TfrmAddElement::CancelButClick()
{
    reject();
}

void TfrmAddElement::CatComboChange()
{
    // Changing the category of an existing element replaces its ID too.
    ApplyIdDefault();
}

} // namespace tb
