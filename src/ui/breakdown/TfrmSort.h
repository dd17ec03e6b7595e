#pragma once

#include "breakdown/StripOrder.h"

#include <QDialog>
#include <QList>

#include <memory>

namespace Ui {
class TfrmSort;
}

namespace tb {

class ScheduleDocument;

// "Sort strips": previews a sort of the scene strips by up to three keys and applies it.
class TfrmSort : public QDialog
{
    Q_OBJECT

public:
    explicit TfrmSort(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmSort() override;

    static const QString HelpPage;

Q_SIGNALS:
    void helpRequested(const QString &page);

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
