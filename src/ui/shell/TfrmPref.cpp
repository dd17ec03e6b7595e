#include "ui/shell/TfrmPref.h"

#include "document/LegacyText.h"
#include "ui_TfrmPref.h"

#include <QColorDialog>
#include <QDir>
#include <QFontDialog>
#include <QPushButton>

namespace tb {

namespace {

QPushButton *slotButton(Ui::TfrmPref &ui, int slot)
{
    QPushButton *buttons[] = {ui.SlotBut1, ui.SlotBut2, ui.SlotBut3, ui.SlotBut4, ui.SlotBut5,
                              ui.SlotBut6, ui.SlotBut7, ui.SlotBut8, ui.SlotBut9, ui.SlotBut10};
    return buttons[slot - 1];
}

} // namespace

TfrmPref::TfrmPref(ScheduleDocument &doc, Settings &settings, const QString &autosavePath, QWidget *parent)
    : DialogWithHelp(QString(), parent) // no help page of its own
    , m_ui(std::make_unique<Ui::TfrmPref>())
    , m_doc(doc)
    , m_settings(settings)
{
    m_ui->setupUi(this);
    // The autosave file is not where the earlier edition put it when the program's
    // folder cannot be written to; the dialog says where it goes.
    m_ui->AutosaveWhereLabel->setText(QStringLiteral("Autosave writes the whole schedule to ") +
                                      QDir::toNativeSeparators(autosavePath) +
                                      QStringLiteral(" (the program folder when it is writable, otherwise your "
                                                     "own data folder). The schedule's own file is not written."));
    QFont note = m_ui->AutosaveWhereLabel->font();
    note.setPointSizeF(note.pointSizeF() * 0.9);
    m_ui->AutosaveWhereLabel->setFont(note);

    chooseColour = [this](const QColor &initial, const QString &title) {
        return QColorDialog::getColor(initial, this, title);
    };
    chooseFont = [this](const QString &family) -> std::optional<QString> {
        bool ok = false;
        const QFont font = QFontDialog::getFont(&ok, QFont(family), this, QStringLiteral("Select font for board"));
        if (!ok)
            return std::nullopt;
        return font.family();
    };

    // The slot captions and the description line items are the program's own lists.
    for (int slot = 1; slot <= StripSlotCount; ++slot)
        slotButton(*m_ui, slot)->setText(StripSlotCaption(StripSlot(slot)));
    m_ui->DescLine1Combo->addItems(DescLineItems());
    m_ui->DescLine2Combo->addItems(DescLineItems());

    for (int slot = 1; slot <= StripSlotCount; ++slot)
        connect(slotButton(*m_ui, slot), &QPushButton::clicked, this, [this, slot] { SlotButClick(slot); });
    connect(m_ui->BackColorBut, &QPushButton::clicked, this, &TfrmPref::BackColorButClick);
    connect(m_ui->TextColorBut, &QPushButton::clicked, this, &TfrmPref::TextColorButClick);
    connect(m_ui->FontBut, &QPushButton::clicked, this, &TfrmPref::FontButClick);
    connect(m_ui->OKBut, &QPushButton::clicked, this, &TfrmPref::OKButClick);
    connect(m_ui->CancelBut, &QPushButton::clicked, this, &TfrmPref::reject);
}

TfrmPref::~TfrmPref() = default;

void TfrmPref::showEvent(QShowEvent *event)
{
    FormShow();
    QDialog::showEvent(event);
}

void TfrmPref::FormShow()
{
    m_pending = PreferencesFromSettings(m_settings);
    m_ui->AutoSaveSpin->setValue(m_pending.autosaveMinutes);
    m_ui->ScHintsCheck->setChecked(m_pending.scenePopups);
    m_ui->WeatherEdit->setText(m_pending.weatherUrl);
    m_ui->RestCheck->setChecked(m_pending.showShootingDays);
    m_ui->SceneChangeCheck->setChecked(m_pending.warnSceneChange);
    m_ui->AutoRestCheck->setChecked(m_pending.warnAutoRestClick);
    m_ui->CallSheetRestCheck->setChecked(m_pending.warnCallSheetRest);
    // A code that is none of the five leaves the box empty, and OK then keeps it.
    m_ui->DescLine1Combo->setCurrentIndex(m_pending.descLine1Index);
    m_ui->DescLine2Combo->setCurrentIndex(m_pending.descLine2Index);
    m_ui->FontLabel->setText(m_pending.boardFont);
    m_ui->FontLabel->setFont(QFont(m_pending.boardFont));
    for (int slot = 1; slot <= StripSlotCount; ++slot)
        showSlotColours(slot);
    slotButton(*m_ui, m_slot)->setChecked(true);
}

void TfrmPref::showSlotColours(int slot)
{
    const QColor back = legacy::ColorValueToQColor(m_pending.stripBackground[slot]);
    const QColor fore = legacy::ColorValueToQColor(m_pending.stripText[slot]);
    slotButton(*m_ui, slot)
        ->setStyleSheet(
            QStringLiteral("QPushButton { background-color: %1; color: %2; border: 1px solid gray; padding: 4px; }"
                           "QPushButton:checked { border: 3px solid palette(highlight); }")
                .arg(back.name(), fore.name()));
}

void TfrmPref::SlotButClick(int slot)
{
    m_slot = qBound(1, slot, StripSlotCount);
    slotButton(*m_ui, m_slot)->setChecked(true);
}

void TfrmPref::BackColorButClick()
{
    const QColor chosen = chooseColour(legacy::ColorValueToQColor(m_pending.stripBackground[m_slot]),
                                       QStringLiteral("Strip background color"));
    if (!chosen.isValid())
        return;
    quint32 value = 0;
    if (legacy::StringToColorValue(legacy::ColorToString(chosen), &value))
        m_pending.stripBackground[m_slot] = value;
    showSlotColours(m_slot);
}

void TfrmPref::TextColorButClick()
{
    const QColor chosen =
        chooseColour(legacy::ColorValueToQColor(m_pending.stripText[m_slot]), QStringLiteral("Strip text color"));
    if (!chosen.isValid())
        return;
    quint32 value = 0;
    if (legacy::StringToColorValue(legacy::ColorToString(chosen), &value))
        m_pending.stripText[m_slot] = value;
    showSlotColours(m_slot);
}

void TfrmPref::FontButClick()
{
    const std::optional<QString> family = chooseFont(m_pending.boardFont);
    if (!family)
        return;
    m_pending.boardFont = *family;
    m_ui->FontLabel->setText(*family);
    m_ui->FontLabel->setFont(QFont(*family));
}

void TfrmPref::OKButClick()
{
    PreferencesInput input = m_pending;
    input.autosaveMinutes = m_ui->AutoSaveSpin->value();
    input.scenePopups = m_ui->ScHintsCheck->isChecked();
    input.weatherUrl = m_ui->WeatherEdit->text();
    input.showShootingDays = m_ui->RestCheck->isChecked();
    input.descLine1Index = m_ui->DescLine1Combo->currentIndex();
    input.descLine2Index = m_ui->DescLine2Combo->currentIndex();
    input.warnSceneChange = m_ui->SceneChangeCheck->isChecked();
    input.warnAutoRestClick = m_ui->AutoRestCheck->isChecked();
    input.warnCallSheetRest = m_ui->CallSheetRestCheck->isChecked();
    // A file that cannot be written has been reported; the choices hold for this run.
    (void)ApplyPreferences(m_doc, m_settings, input);
    accept();
}

} // namespace tb
