#pragma once

#include "breakdown/ElementEditing.h"

#include "ui/shell/DialogWithHelp.h"
#include <QList>

#include <memory>

namespace Ui {
class TfrmAddElement;
}

namespace tb {

class ScheduleDocument;

// "Element": creates or edits one breakdown element and the scenes it is assigned to.
class TfrmAddElement : public DialogWithHelp
{
    Q_OBJECT

public:
    explicit TfrmAddElement(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmAddElement() override;

    static const QString HelpPage;

    // The element being edited; below 1 for a new one. Set before showing.
    int editIndex = -1;
    // The category a new element starts in (1 = cast). The scene editor sets it to the
    // column last right-clicked, and it stays until changed.
    int currentCategory = 1;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void FormShow();
    void AddAnElement();
    void ApplyIdDefault();
    ElementPage gatherPage() const;
    QList<AssignLine> gatherLines() const;
    void fillAssignList(int element);
    void OKButClick();
    void AddContButClick();
    void CancelButClick();
    void CatComboChange();

    ScheduleDocument &m_doc;
    std::unique_ptr<Ui::TfrmAddElement> m_ui;
    QList<AssignLine> m_lines;
};

} // namespace tb
