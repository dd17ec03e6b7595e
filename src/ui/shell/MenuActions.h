#pragma once

// Object names of the main window's menu entries and of the board's pop-up menu.
// Each area declares the entries it serves under these names in its table
// (MenuEntry.h); the main window places them in its menus by these names.

namespace tb::actions {

// File
inline constexpr char New1[] = "New1";                           // "&New"
inline constexpr char Openfile1[] = "Openfile1";                 // "&Open..."
inline constexpr char Save1[] = "Save1";                         // "&Save" F12
inline constexpr char SaveAs1[] = "SaveAs1";                     // "Save &As..."
inline constexpr char Importscript1[] = "Importscript1";         // "&Import script..."
inline constexpr char ImportFinalDraft1[] = "ImportFinalDraft1"; // "Import &Final Draft reports..."
inline constexpr char AsSpreadsheet1[] = "AsSpreadsheet1";       // "&Export board" > "As &Spreadsheet..."
inline constexpr char AsHTML1[] = "AsHTML1";                     // "&Export board" > "As &HTML..."
inline constexpr char Breakdownsheets1[] = "Breakdownsheets1";   // "&Print" > "&Breakdown sheets..."
inline constexpr char Callsheet1[] = "Callsheet1";               // "&Print" > "&Call sheet..."
inline constexpr char Dayoutofdays1[] = "Dayoutofdays1";         // "&Print" > "&Day out of days..."
inline constexpr char Elementsummary1[] = "Elementsummary1";     // "&Print" > "Element summary..."
inline constexpr char Productionboard1[] = "Productionboard1";   // "&Print" > "&Production board..."
inline constexpr char Shootingschedule1[] = "Shootingschedule1"; // "&Print" > "&Shooting schedule..."
inline constexpr char Preferences1[] = "Preferences1";           // "P&references..."
inline constexpr char Exit1[] = "Exit1";                         // "&Exit" Ctrl+Q

// Edit
inline constexpr char Undo1[] = "Undo1";     // "&Undo" Ctrl+Z
inline constexpr char Redo1[] = "Redo1";     // "Redo"
inline constexpr char Cut1[] = "Cut1";       // "&Cut" Ctrl+X
inline constexpr char Copy1[] = "Copy1";     // "Co&py" Ctrl+C
inline constexpr char Paste1[] = "Paste1";   // "&Paste" Ctrl+V
inline constexpr char Delete1[] = "Delete1"; // "Delete" Del

// Production
inline constexpr char Maindetails1[] = "Maindetails1"; // "&Main details..."
inline constexpr char Startdate1[] = "Startdate1";     // "&Start date..."
inline constexpr char Holddays1[] = "Holddays1";       // "Hold days..."
inline constexpr char Endofday1[] = "Endofday1";       // "&End of day..." Ctrl+E

// Strips
inline constexpr char Addscene1[] = "Addscene1";                         // "&Add scene at end..." Ins
inline constexpr char Insertscene1[] = "Insertscene1";                   // "&Insert scene..." Shift+Ins
inline constexpr char Editscene1[] = "Editscene1";                       // "&Edit scene..." Ctrl+Ins
inline constexpr char Lockstriptodate1[] = "Lockstriptodate1";           // "Lock / un-lock to date..."
inline constexpr char Adddaydivider1[] = "Adddaydivider1";               // "Add &day divider at end" Shift+Ins
inline constexpr char Insertdaydivider1[] = "Insertdaydivider1";         // "I&nsert day divider"
inline constexpr char Removealldaydividers1[] = "Removealldaydividers1"; // "&Remove all day dividers..."
inline constexpr char Addbanner1[] = "Addbanner1";                       // "Add &banner at end..." Ctrl+Ins
inline constexpr char Insertbanner1[] = "Insertbanner1";                 // "In&sert banner..."
inline constexpr char EditBanner1[] = "EditBanner1";                     // "Edi&t banner..."
inline constexpr char Removeallbanners1[] = "Removeallbanners1";         // "Re&move all banners..."
inline constexpr char Automaticdaydividers1[] = "Automaticdaydividers1"; // "A&uto pages-per-day..."
inline constexpr char Autorestdays1[] = "Autorestdays1";                 // "Aut&o rest days..."
inline constexpr char Convertautorestdaystobanners1[] =
    "Convertautorestdaystobanners1";                                           // "Convert auto-rest days to banners..."
inline constexpr char Sortstrips1[] = "Sortstrips1";                           // "Sort stri&ps..."
inline constexpr char Conformstriporder1[] = "Conformstriporder1";             // "Conform strip order..."
inline constexpr char Resetbreakdownnumbering1[] = "Resetbreakdownnumbering1"; // "Reset brea&kdown numbering..."

// Elements
inline constexpr char Addelement1[] = "Addelement1";                     // "&Add element..." Ctrl+E
inline constexpr char Editelement1[] = "Editelement1";                   // "Edit element..."
inline constexpr char Reordercastnumbering1[] = "Reordercastnumbering1"; // "Reset cast numbering..."
inline constexpr char Sortelements1[] = "Sortelements1";                 // "Sort elements by category..."

// View
inline constexpr char Fullscreen1[] = "Fullscreen1"; // "Fullscreen"
inline constexpr char N601[] = "N601";               // "60%"
inline constexpr char N701[] = "N701";               // "70%"
inline constexpr char N801[] = "N801";               // "80%"
inline constexpr char N901[] = "N901";               // "90%"
inline constexpr char N1001[] = "N1001";             // "100%"
inline constexpr char N1101[] = "N1101";             // "110%"
inline constexpr char N1201[] = "N1201";             // "120%"
inline constexpr char N1301[] = "N1301";             // "130%"
inline constexpr char N1401[] = "N1401";             // "140%"

// Help
inline constexpr char Contents1[] = "Contents1"; // "&Contents" F1
inline constexpr char Index1[] = "Index1";       // "&Index"
inline constexpr char About1[] = "About1";       // "&About..."

// The board's pop-up menu
inline constexpr char PopCut1[] = "PopCut1";                           // "Cut" Ctrl+X
inline constexpr char PopCopy1[] = "PopCopy1";                         // "Copy" Ctrl+C
inline constexpr char PopPaste1[] = "PopPaste1";                       // "Paste (insert)" Ctrl+V
inline constexpr char PopDelete1[] = "PopDelete1";                     // "Delete selection" Del
inline constexpr char PopAddscene1[] = "PopAddscene1";                 // "Add scene at end..." Ins
inline constexpr char PopInsertscene1[] = "PopInsertscene1";           // "Insert scene..." Shift+Ins
inline constexpr char PopEditscene1[] = "PopEditscene1";               // "Edit scene..."
inline constexpr char PopLockstrip1[] = "PopLockstrip1";               // "Lock / un-lock to date..."
inline constexpr char PopAdddaydivider1[] = "PopAdddaydivider1";       // "Add day divider at end..." Shift+Ins
inline constexpr char PopInsertdaydivider1[] = "PopInsertdaydivider1"; // "Insert day divider..."
inline constexpr char PopAddelement1[] = "PopAddelement1";             // "Add element at end..." Ctrl+E
inline constexpr char PopEditelement1[] = "PopEditelement1";           // "Edit element..."

} // namespace tb::actions
