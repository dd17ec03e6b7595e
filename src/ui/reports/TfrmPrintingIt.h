#pragma once

#include "reports/ReportBuilders.h"

#include "ui/shell/DialogWithHelp.h"

#include <memory>

namespace Ui {
class TfrmPrintingIt;
}

class QLabel;
class QProgressBar;

namespace tb {

// The shared printing progress window: a borderless box that stays on top, with a label
// and a bar the report code sets while it builds its pages.
class TfrmPrintingIt : public DialogWithHelp, public PrintingProgress
{
    Q_OBJECT

public:
    explicit TfrmPrintingIt(QWidget *parent = nullptr);
    ~TfrmPrintingIt() override;

    QLabel *PrintLab() const;
    QProgressBar *PrintGuage() const;

    void setText(const QString &text) override;
    void setMaximum(int maximum) override;
    void setPosition(int position) override;
    void showProgress() override;
    void hideProgress() override;
    void keepAlive() override;

private:
    std::unique_ptr<Ui::TfrmPrintingIt> ui;
};

} // namespace tb
