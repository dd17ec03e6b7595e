#pragma once

#include "ui/shell/DialogWithHelp.h"

#include <memory>

class QPrinter;

namespace Ui {
class TfrmPreview;
}

namespace tb {

class tAlPreview;

// The print preview window: the recorded pages of a report, page by page, zoomed, and
// printed again on request. Report dialogs fill Previewer's page list, show page 1 and
// show the window modally.
class TfrmPreview : public DialogWithHelp
{
    Q_OBJECT

public:
    explicit TfrmPreview(QWidget *parent = nullptr);
    ~TfrmPreview() override;

    tAlPreview *Previewer() const;
    // Page 1 and the counter.
    void ShowFirstPage();
    // The counter panel: current page "/" page count.
    QString counterText() const;

    // Prints the recorded pages a..b on the printer, once per copy it asks for.
    bool PrintPages(QPrinter &printer, int first, int last);

public Q_SLOTS:
    void PrintNowClick();
    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void spbfirstClick();
    void spbPrevClick();
    void spbNextClick();
    void spbLastClick();
    void cbxScaleChange(const QString &text);
    void updateCounter();
    bool handleKey(int key);

    std::unique_ptr<Ui::TfrmPreview> ui;
};

} // namespace tb
