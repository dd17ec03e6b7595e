#include "app/TfrmAbout.h"

#include "ui_TfrmAbout.h"

#include <QLayout>
#include <QPushButton>

namespace tb {

TfrmAbout::TfrmAbout(QWidget *parent)
    : DialogWithHelp(QString(), parent) // no help page of its own
    , m_ui(std::make_unique<Ui::TfrmAbout>())
{
    m_ui->setupUi(this);
    QFont title = m_ui->ProductLabel->font();
    title.setPointSizeF(title.pointSizeF() * 2);
    title.setBold(true);
    m_ui->ProductLabel->setFont(title);
    m_ui->VersionLabel->setText(QStringLiteral("Version ") + QStringLiteral(TB_VERSION));
    m_ui->DescriptionLabel->setMinimumWidth(380);
    // Word-wrapped labels get the height their width needs.
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(m_ui->OKBut, &QPushButton::clicked, this, &TfrmAbout::accept);
}

TfrmAbout::~TfrmAbout() = default;

} // namespace tb
