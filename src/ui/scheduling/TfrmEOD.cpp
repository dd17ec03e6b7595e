#include "ui/scheduling/TfrmEOD.h"
#include "ui_TfrmEOD.h"

#include "document/ScheduleDocument.h"
#include "scheduling/EndOfDay.h"

#include <QListWidgetItem>
#include <QShowEvent>

namespace tb {

TfrmEOD::TfrmEOD(ScheduleDocument &doc, QWidget *parent)
    : SchedulingDialog(doc, QStringLiteral("end-of-day.html"), parent)
    , ui(std::make_unique<Ui::TfrmEOD>())
{
    ui->setupUi(this);
    ui->DatePicker->setDisplayFormat(QLocale().dateFormat(QLocale::LongFormat));
    connect(ui->DatePicker, &QDateEdit::dateChanged, this, &TfrmEOD::FillList);
    connect(ui->OKBut, &QPushButton::clicked, this, &TfrmEOD::OKButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmEOD::~TfrmEOD() = default;

void TfrmEOD::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        FormShow();
    SchedulingDialog::showEvent(event);
}

void TfrmEOD::FormShow()
{
    const QSignalBlocker block(ui->DatePicker);
    ui->DatePicker->setDate(today());
    FillList();
}

void TfrmEOD::FillList()
{
    ScheduleDocument &doc = document();
    ui->CheckListBox1->clear();
    for (int row : SceneStripsOn(doc, ui->DatePicker->date())) {
        const StripRecord &strip = doc.strips[row];
        QString text = strip[StripField::SceneNumber];
        for (StripField field : {StripField::SetName, StripField::Synopsis}) {
            if (!strip[field].isEmpty())
                text += QStringLiteral("  -  ") + strip[field];
        }
        auto *item = new QListWidgetItem(text, ui->CheckListBox1);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(IsShot(strip) ? Qt::Checked : Qt::Unchecked);
        item->setData(Qt::UserRole, row);
    }
}

void TfrmEOD::OKButClick()
{
    QList<EndOfDayMark> marks;
    for (int i = 0; i < ui->CheckListBox1->count(); ++i) {
        const QListWidgetItem *item = ui->CheckListBox1->item(i);
        marks.append({item->data(Qt::UserRole).toInt(), item->checkState() == Qt::Checked});
    }
    if (!marks.isEmpty()) {
        const Result applied = ApplyEndOfDay(document(), ui->DatePicker->date(), marks);
        if (!applied.ok()) {
            report(applied);
            return;
        }
    }
    accept();
}

} // namespace tb
