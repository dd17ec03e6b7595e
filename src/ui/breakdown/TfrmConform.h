#pragma once

#include "breakdown/StripOrder.h"

#include "ui/shell/DialogWithHelp.h"

#include <memory>

namespace Ui {
class TfrmConform;
}

namespace tb {

class ScheduleDocument;

// "Conform strip order": the user types the wanted order of breakdown sheet numbers,
// with dividers, rest days and banners between them, and the board is rebuilt so.
class TfrmConform : public DialogWithHelp
{
    Q_OBJECT

public:
    explicit TfrmConform(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmConform() override;

    static const QString HelpPage;
    // Lines shown at once; once there are more, the grid keeps the last ones in view.
    static constexpr int VisibleLines = 11;

    const ConformList &entries() const { return m_list; }

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void FormShow();
    void ConformEditKeyPress();
    void ConformGridKeyDown();
    void ConformGridGetCellProps();
    void OKButClick();
    void CancelButClick();

    ScheduleDocument &m_doc;
    std::unique_ptr<Ui::TfrmConform> m_ui;
    ConformList m_list;
};

} // namespace tb
