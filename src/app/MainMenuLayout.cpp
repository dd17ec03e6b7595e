#include "app/MainMenuLayout.h"

#include "ui/shell/MenuActions.h"

namespace tb {

namespace {

MenuItem e(const char *name)
{
    return MenuItem::entry(name);
}

const MenuItem separator = MenuItem::separator();

} // namespace

QList<ZoomStep> ZoomSteps()
{
    using namespace actions;
    return {{N601, 60},   {N701, 70},   {N801, 80},   {N901, 90},  {N1001, 100},
            {N1101, 110}, {N1201, 120}, {N1301, 130}, {N1401, 140}};
}

QList<MenuItem> MainMenuLayout()
{
    using namespace actions;
    QList<MenuItem> zoom;
    for (const ZoomStep &step : ZoomSteps())
        zoom.append(e(step.entry));

    return {
        MenuItem::submenu(
            "File1", QStringLiteral("&File"),
            {e(New1), e(Openfile1), e(Save1), e(SaveAs1), separator, e(Importscript1), e(ImportFinalDraft1),
             MenuItem::submenu("Exportboard1", QStringLiteral("&Export board"), {e(AsSpreadsheet1), e(AsHTML1)}),
             separator,
             MenuItem::submenu("Print1", QStringLiteral("&Print"),
                               {e(Breakdownsheets1), e(Callsheet1), e(Dayoutofdays1), e(Elementsummary1),
                                e(Productionboard1), e(Shootingschedule1)}),
             separator, e(Preferences1), separator, e(Exit1)}),
        MenuItem::submenu("Edit1", QStringLiteral("&Edit"),
                          {e(Undo1), e(Redo1), separator, e(Cut1), e(Copy1), e(Paste1), e(Delete1)}),
        MenuItem::submenu("Production1", QStringLiteral("&Production"),
                          {e(Maindetails1), e(Startdate1), e(Holddays1), separator, e(Endofday1)}),
        // Locking strips to a date has no entry of its own in the earlier edition's
        // menus; it stands with the other commands on the selected strips.
        MenuItem::submenu("Strips1", QStringLiteral("&Strips"),
                          {e(Addscene1),
                           e(Insertscene1),
                           e(Editscene1),
                           e(Lockstriptodate1),
                           separator,
                           e(Adddaydivider1),
                           e(Insertdaydivider1),
                           e(Removealldaydividers1),
                           separator,
                           e(Addbanner1),
                           e(Insertbanner1),
                           e(EditBanner1),
                           e(Removeallbanners1),
                           separator,
                           e(Automaticdaydividers1),
                           e(Autorestdays1),
                           e(Convertautorestdaystobanners1),
                           separator,
                           e(Sortstrips1),
                           e(Conformstriporder1),
                           e(Resetbreakdownnumbering1)}),
        MenuItem::submenu("Elements1", QStringLiteral("Ele&ments"),
                          {e(Addelement1), e(Editelement1), separator, e(Reordercastnumbering1), e(Sortelements1)}),
        MenuItem::submenu("View1", QStringLiteral("&View"),
                          {e(Fullscreen1), MenuItem::submenu("Zoom1", QStringLiteral("&Zoom"), zoom)}),
        MenuItem::submenu("Help1", QStringLiteral("&Help"), {e(Contents1), e(Index1), separator, e(About1)}),
    };
}

QList<MenuItem> BoardPopupLayout()
{
    using namespace actions;
    // clang-format off
    return {e(PopCut1), e(PopCopy1), e(PopPaste1), e(PopDelete1),
            separator,
            e(PopAddscene1), e(PopInsertscene1), e(PopEditscene1), e(PopLockstrip1),
            separator,
            e(PopAdddaydivider1), e(PopInsertdaydivider1),
            separator,
            e(PopAddelement1), e(PopEditelement1)};
    // clang-format on
}

QList<ToolButtonItem> ToolBarLayout()
{
    using namespace actions;
    return {
        {Openfile1, ToolIcon::Open, "OpenBut", false}, {Save1, ToolIcon::Save, "SaveBut", true},
        {Undo1, ToolIcon::Undo, "UndoBut", true},      {Cut1, ToolIcon::Cut, "CutBut", false},
        {Copy1, ToolIcon::Copy, "CopyBut", false},     {Paste1, ToolIcon::Paste, "PasteBut", false},
    };
}

} // namespace tb
