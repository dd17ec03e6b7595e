#pragma once

#include "breakdown/SceneEditing.h"

#include "ui/shell/DialogWithHelp.h"
#include <QList>
#include <QPointer>

#include <functional>
#include <memory>

class QCheckBox;
class QMenu;
class QPoint;

namespace Ui {
class TfrmStrip;
}

namespace tb {

class ScheduleDocument;
class Settings;
class TfrmAddElement;

// "Scene breakdown": adds, inserts or edits one scene strip with its elements. The
// caller sets the strip editor mode editMode (1 add, 9 insert, 4 edit) and, for
// insert and edit, currentStrip before showing it.
class TfrmStrip : public DialogWithHelp
{
    Q_OBJECT

public:
    // The settings keep the remembered answer of the warning on Prev strip / Next strip.
    TfrmStrip(ScheduleDocument &doc, Settings &settings, QWidget *parent = nullptr);
    ~TfrmStrip() override;

    static const QString HelpPage;
    // Elements of one category per column of the element pop-up menu.
    static constexpr int PopupColumnLength = 25;

    // The element dialog that "Add new..." opens; shared with the main window so that
    // the category last right-clicked here is the one a new element starts in. When
    // none is set, the editor makes its own on first use.
    void setElementDialog(TfrmAddElement *dialog);
    TfrmAddElement *elementDialog();

    // The mode the editor opens in: SceneMode::Add, Insert or Edit (0 until set).
    int editMode = 0;
    // The strip edited (mode 4) or where a new one goes (mode 9).
    int currentStrip = 0;
    int linesPerPage = DefaultLinesPerPage;

    // The element pop-up menu while it is open (for tests and accessibility tools).
    QMenu *elementPopup() const;
    const AssignmentFlags &assignmentFlags() const { return m_flags; }
    bool isChanged() const { return m_changed; }

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int mode() const;
    void FormShow();
    void FillPage();
    void ClearAllData();
    void RefreshLists();
    void DoTempAssignments();
    void refreshPickLists();
    void setPage(const ScenePage &page);
    ScenePage gatherPage() const;
    void OKButClick();
    void AddContButClick();
    void CancelButClick();
    void NextButClick();
    void PrevButClick();
    void stepStrip(int direction);
    void ElGridMouseUp(const QPoint &pos, const QPoint &globalPos);
    void ElPopupToggle(int item, bool checked);
    void ElPopupAddNew();
    void SceneEditChange();

    ScheduleDocument &m_doc;
    Settings &m_settings;
    std::unique_ptr<Ui::TfrmStrip> m_ui;
    QPointer<TfrmAddElement> m_elementDialog;
    AssignmentFlags m_flags;
    QList<int> m_popupMap; // element number of each pop-up item
    QMenu *m_popup = nullptr;
    bool m_changed = false;
};

} // namespace tb
