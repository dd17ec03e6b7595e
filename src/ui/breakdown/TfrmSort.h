#pragma once

#include "breakdown/StripOrder.h"

#include "ui/shell/DialogWithHelp.h"
#include <QList>

#include <memory>

namespace Ui {
class TfrmSort;
}

namespace tb {

class ScheduleDocument;

// "Sort strips": previews a sort of the scene strips by up to three keys and applies it.
class TfrmSort : public DialogWithHelp
{
    Q_OBJECT

public:
    explicit TfrmSort(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmSort() override;

    static const QString HelpPage;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void FormShow();
    void fillGrid();
    void SortButClick();
    void DoSort();
    void UnSortButClick();
    void OKButClick();
    void CancelButClick();

    ScheduleDocument &m_doc;
    std::unique_ptr<Ui::TfrmSort> m_ui;
    QList<SortRow> m_rows;
    bool m_hasNonScene = false;
};

} // namespace tb
