#pragma once

#include "document/Settings.h"

#include "ui/shell/DialogWithHelp.h"
#include <QColor>

#include <functional>
#include <memory>
#include <optional>

namespace Ui {
class TfrmPref;
}

namespace tb {

class ScheduleDocument;

// The preferences: the "General" page (autosave, scene pop-ups, weather page, shooting
// days, the three warnings) and the "Strip format" page (the ten colour slots, the two
// description lines, the board font). OK writes the settings file; Cancel changes nothing.
class TfrmPref : public DialogWithHelp
{
    Q_OBJECT

public:
    TfrmPref(ScheduleDocument &doc, Settings &settings, const QString &autosavePath, QWidget *parent = nullptr);
    ~TfrmPref() override;

    Ui::TfrmPref &form() { return *m_ui; }
    // The colour slot being edited, 1..10.
    int selectedSlot() const { return m_slot; }
    // The colours chosen so far, not yet taken.
    const PreferencesInput &pending() const { return m_pending; }

    // The colour and font dialogs (the toolkit's by default; tests replace them). An
    // invalid colour or no font means the choice was cancelled.
    std::function<QColor(const QColor &initial, const QString &title)> chooseColour;
    std::function<std::optional<QString>(const QString &family)> chooseFont;

    void FormShow();
    void OKButClick();
    void SlotButClick(int slot);
    void BackColorButClick();
    void TextColorButClick();
    void FontButClick();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void showSlotColours(int slot);

    std::unique_ptr<Ui::TfrmPref> m_ui;
    ScheduleDocument &m_doc;
    Settings &m_settings;
    PreferencesInput m_pending;
    int m_slot = 1;
};

} // namespace tb
