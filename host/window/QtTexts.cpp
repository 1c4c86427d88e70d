#include "window/QtTexts.h"

#include "facade/services/InterfaceLocale.h"
#include "facade/services/Text.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLibraryInfo>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

struct Row {
    const char *contexts;       ///< classes of Qt that show it, parted by blanks
    const char *source;         ///< as Qt's own code has it
    Text text;
};
// Names of paper sizes are the same everywhere, and command lines stay English.
constexpr Row kRows[] = {
    {"QFileDialog", "Look in:", {30792, u"Hely:"}},
    {"QFileDialog", "File &name:", {30793, u"Fájl&név:"}},
    {"QFileDialog", "Files of type:", {30794, u"Fájltípus:"}},
    {"QFileDialog", "Back", {30700, u"Vissza"}},
    {"QFileDialog", "Forward", {30701, u"Előre"}},
    {"QFileDialog", "Parent Directory", {30702, u"Szülőmappa"}},
    {"QFileDialog", "Create New Folder", {30703, u"Új mappa létrehozása"}},
    {"QFileDialog", "List View", {30704, u"Listanézet"}},
    {"QFileDialog", "Detail View", {30705, u"Részletes nézet"}},
    {"QFileDialog", "Go back", {30706, u"Ugrás vissza"}},
    {"QFileDialog", "Go forward", {30707, u"Ugrás előre"}},
    {"QFileDialog", "Go to the parent directory", {30708, u"Ugrás a szülőmappába"}},
    {"QFileDialog", "Create a New Folder", {30709, u"Új mappa létrehozása"}},
    {"QFileDialog", "Change to list view mode", {30710, u"Váltás listanézetre"}},
    {"QFileDialog", "Change to detail view mode", {30711, u"Váltás részletes nézetre"}},
    {"QFileDialog", "Sidebar", {30712, u"Oldalsáv"}},
    {"QFileDialog", "List of places and bookmarks", {30713, u"Helyek és könyvjelzők listája"}},
    {"QFileDialog", "Files", {30714, u"Fájlok"}},
    {"QFileDialog", "Recent Places", {30715, u"Legutóbbi helyek"}},
    {"QFileDialog", "Remove", {30716, u"Eltávolítás"}},
    {"QFileDialog", "&Rename", {30717, u"Át&nevezés"}},
    {"QFileDialog", "&Delete", {30718, u"&Törlés"}},
    {"QFileDialog", "Show &hidden files", {30719, u"&Rejtett fájlok megjelenítése"}},
    {"QFileDialog", "&New Folder", {30720, u"Ú&j mappa"}},
    {"QFileDialog", "New Folder", {30721, u"Új mappa"}},
    {"QFileDialog QLineEdit QWidgetTextControl", "Delete", {30722, u"Törlés"}},
    {"QFileDialog", "Are you sure you want to delete '%1'?", {30723, u"Biztosan törlöd ezt: '%1'?"}},
    {"QFileDialog",
     "'%1' is write protected.\nDo you want to delete it anyway?",
     {30724, u"A(z) '%1' írásvédett.\nÍgy is törlöd?"}},
    {"QFileDialog", "Could not delete directory.", {30725, u"A mappa törlése nem sikerült."}},
    {"QFileDialog",
     "%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     {30726, u"%1\nA mappa nem található.\nEllenőrizd a nevét!"}},
    {"QFileDialog",
     "%1\nFile not found.\nPlease verify the correct file name was given.",
     {30727, u"%1\nA fájl nem található.\nEllenőrizd a nevét!"}},
    {"QFileDialog",
     "%1 already exists.\nDo you want to replace it?",
     {30728, u"%1 már létezik.\nLecseréled?"}},
    {"QFileDialog", "&Open", {30729, u"&Megnyitás"}},
    {"QFileDialog", "&Save", {30730, u"M&entés"}},
    {"QFileDialog", "&Choose", {30731, u"&Kiválasztás"}},
    {"QFileDialog", "Directories", {30732, u"Mappák"}},
    {"QFileDialog", "Directory:", {30733, u"Mappa:"}},
    {"QFileDialog", "All Files (*)", {30734, u"Minden fájl (*)"}},
    {"QFileDialog", "All files (*)", {30735, u"Minden fájl (*)"}},
    {"QFileDialog QPlatformTheme", "Open", {30736, u"Megnyitás"}},
    {"QFileDialog", "Save As", {30737, u"Mentés másként"}},
    {"QFileDialog", "Find Directory", {30738, u"Mappa keresése"}},
    {"QFileSystemModel", "Name", {30739, u"Név"}},
    {"QFileSystemModel", "Size", {30740, u"Méret"}},
    {"QFileSystemModel", "Type", {30741, u"Típus"}},
    {"QFileSystemModel", "Date Modified", {30742, u"Módosítva"}},
    {"QFileSystemModel", "My Computer", {30743, u"Ez a gép"}},
    {"QFileSystemModel", "Computer", {30744, u"Számítógép"}},
    {"QFileSystemModel", "Invalid filename", {30745, u"Érvénytelen fájlnév"}},
    {"QAbstractFileIconProvider", "Drive", {30746, u"Meghajtó"}},
    {"QAbstractFileIconProvider", "Folder", {30747, u"Mappa"}},
    {"QAbstractFileIconProvider", "File", {30748, u"Fájl"}},
    {"QAbstractFileIconProvider", "%1 File", {30749, u"%1 fájl"}},
    {"QAbstractFileIconProvider", "Unknown", {30750, u"Ismeretlen"}},
    {"QPlatformTheme QDialogButtonBox", "OK", {30751, u"OK"}},
    {"QPlatformTheme", "Save", {30752, u"Mentés"}},
    {"QPlatformTheme", "Save All", {30753, u"Mindet menti"}},
    {"QPlatformTheme", "&Yes", {30754, u"&Igen"}},
    {"QPlatformTheme", "Yes to &All", {30755, u"Igen, &mindre"}},
    {"QPlatformTheme", "&No", {30756, u"&Nem"}},
    {"QPlatformTheme", "N&o to All", {30757, u"Nem, min&dre"}},
    {"QPlatformTheme", "Abort", {30758, u"Megszakítás"}},
    {"QPlatformTheme", "Retry", {30759, u"Újra"}},
    {"QPlatformTheme", "Ignore", {30760, u"Kihagyás"}},
    {"QPlatformTheme", "Close", {30761, u"Bezárás"}},
    {"QPlatformTheme QProgressDialog", "Cancel", {30762, u"Mégse"}},
    {"QPlatformTheme", "Discard", {30763, u"Elvetés"}},
    {"QPlatformTheme", "Help", {30764, u"Súgó"}},
    {"QPlatformTheme", "Apply", {30765, u"Alkalmaz"}},
    {"QPlatformTheme", "Reset", {30766, u"Visszaállítás"}},
    {"QPlatformTheme", "Restore Defaults", {30767, u"Alapértékek"}},
    {"QLineEdit QWidgetTextControl", "&Undo", {30768, u"&Visszavonás"}},
    {"QLineEdit QWidgetTextControl", "&Redo", {30769, u"Ú&jra"}},
    {"QLineEdit QWidgetTextControl", "Cu&t", {30770, u"&Kivágás"}},
    {"QLineEdit QWidgetTextControl", "&Copy", {30771, u"&Másolás"}},
    {"QLineEdit QWidgetTextControl", "&Paste", {30772, u"&Beillesztés"}},
    {"QLineEdit QWidgetTextControl", "Select All", {30773, u"Mind kijelölése"}},
    {"QWidgetTextControl", "Copy &Link Location", {30774, u"&Hivatkozás másolása"}},
    {"QAbstractSpinBox", "&Select All", {30775, u"&Mind kijelölése"}},
    {"QAbstractSpinBox", "&Step up", {30776, u"&Növelés"}},
    {"QAbstractSpinBox", "Step &down", {30777, u"&Csökkentés"}},
    {"QScrollBar", "Scroll here", {30778, u"Görgetés ide"}},
    {"QScrollBar", "Left edge", {30779, u"Bal szél"}},
    {"QScrollBar", "Top", {30780, u"Teteje"}},
    {"QScrollBar", "Right edge", {30781, u"Jobb szél"}},
    {"QScrollBar", "Bottom", {30782, u"Alja"}},
    {"QScrollBar", "Page left", {30783, u"Egy oldallal balra"}},
    {"QScrollBar", "Page up", {30784, u"Egy oldallal fel"}},
    {"QScrollBar", "Page right", {30785, u"Egy oldallal jobbra"}},
    {"QScrollBar", "Page down", {30786, u"Egy oldallal le"}},
    {"QScrollBar", "Scroll left", {30787, u"Görgetés balra"}},
    {"QScrollBar", "Scroll up", {30788, u"Görgetés fel"}},
    {"QScrollBar", "Scroll right", {30789, u"Görgetés jobbra"}},
    {"QScrollBar", "Scroll down", {30790, u"Görgetés le"}},
    {"QComboBox", "Open the combo box selection popup", {30791, u"A lenyíló lista megnyitása"}},
    {"QTabBar", "Scroll Left", {30888, u"Görgetés balra"}},
    {"QTabBar", "Scroll Right", {30889, u"Görgetés jobbra"}},
    // printing
    {"QPrintDialog", "Print", {30800, u"Nyomtatás"}},
    {"QPrintDialog", "&Print", {30801, u"&Nyomtatás"}},
    {"QPrintDialog", "&Options >>", {30802, u"&Beállítások >>"}},
    {"QPrintDialog", "&Options <<", {30803, u"&Beállítások <<"}},
    {"QPrintDialog", "Print to File (PDF)", {30804, u"Nyomtatás fájlba (PDF)"}},
    {"QPrintDialog", "Print To File ...", {30805, u"Nyomtatás fájlba…"}},
    {"QPrintDialog", "Local file", {30806, u"Helyi fájl"}},
    {"QPrintDialog", "Write PDF file", {30807, u"PDF-fájl írása"}},
    {"QPrintDialog",
     "%1 is a directory.\nPlease choose a different file name.",
     {30808, u"%1 egy mappa.\nAdj meg másik fájlnevet!"}},
    {"QPrintDialog",
     "File %1 is not writable.\nPlease choose a different file name.",
     {30809, u"%1 nem írható.\nAdj meg másik fájlnevet!"}},
    {"QPrintDialog",
     "%1 already exists.\nDo you want to overwrite it?",
     {30810, u"%1 már létezik.\nFelülírod?"}},
    {"QPrintDialog", "All Pages", {30811, u"Minden oldal"}},
    {"QPrintDialog", "Odd Pages", {30812, u"Páratlan oldalak"}},
    {"QPrintDialog", "Even Pages", {30813, u"Páros oldalak"}},
    {"QPrintDialog", "Left to Right, Top to Bottom", {30814, u"Balról jobbra, fentről le"}},
    {"QPrintDialog", "Left to Right, Bottom to Top", {30815, u"Balról jobbra, lentről fel"}},
    {"QPrintDialog", "Right to Left, Top to Bottom", {30816, u"Jobbról balra, fentről le"}},
    {"QPrintDialog", "Right to Left, Bottom to Top", {30817, u"Jobbról balra, lentről fel"}},
    {"QPrintDialog", "Top to Bottom, Left to Right", {30818, u"Fentről le, balról jobbra"}},
    {"QPrintDialog", "Top to Bottom, Right to Left", {30819, u"Fentről le, jobbról balra"}},
    {"QPrintDialog", "Bottom to Top, Left to Right", {30820, u"Lentről fel, balról jobbra"}},
    {"QPrintDialog", "Bottom to Top, Right to Left", {30821, u"Lentről fel, jobbról balra"}},
    {"QPrintDialog", "Invalid Pages Definition", {30822, u"Hibás oldalmegadás"}},
    {"QPrintDialog",
     "%1 does not follow the correct syntax. Please use ',' to separate ranges and "
     "pages, '-' to define ranges and make sure ranges do not intersect with each "
     "other.",
     {30823, u"%1: hibás megadás. Az oldalakat és tartományokat ',' válassza el, a tartományok "
             u"végeit '-' kösse össze; a tartományok nem fedhetik egymást."}},
    {"QPrintDialog",
     "The 'From' value cannot be greater than the 'To' value.",
     {30824, u"Az első oldal nem lehet nagyobb az utolsónál."}},
    {"QPrintDialog", "Duplex Settings Conflicts", {30825, u"Ütköző kétoldalas beállítások"}},
    {"QPrintDialog",
     "There are conflicts in duplex settings. Do you want to fix them?",
     {30826, u"A kétoldalas nyomtatás beállításai ütköznek. Kijavítod őket?"}},
    {"QPrintDialog",
     "Options 'Pages Per Sheet' and 'Page Set' cannot be used together.\nPlease turn "
     "one of those options off.",
     {30827, u"Az 'Oldal laponként' és az 'Oldalak köre' együtt nem használható.\nKapcsold ki "
             u"az egyiket!"}},
    {"QPrintWidget", "Printer", {30828, u"Nyomtató"}},
    {"QPrintWidget", "&Name:", {30829, u"&Név:"}},
    {"QPrintWidget", "P&roperties", {30830, u"&Tulajdonságok"}},
    {"QPrintWidget", "Location:", {30831, u"Hely:"}},
    {"QPrintWidget", "Preview", {30832, u"Előnézet"}},
    {"QPrintWidget", "Type:", {30833, u"Típus:"}},
    {"QPrintWidget", "Output &file:", {30834, u"Kimeneti &fájl:"}},
    {"QPrintPropertiesDialog", "Printer Properties", {30835, u"A nyomtató tulajdonságai"}},
    {"QPrintPropertiesDialog", "Job Options", {30836, u"A feladat beállításai"}},
    {"QPrintPropertiesDialog", "Page Setup Conflicts", {30837, u"Ütköző oldalbeállítások"}},
    {"QPrintPropertiesDialog",
     "There are conflicts in page setup options. Do you want to fix them?",
     {30838, u"Az oldalbeállítások ütköznek. Kijavítod őket?"}},
    {"QPrintPropertiesDialog", "Advanced Option Conflicts", {30839, u"Ütköző speciális beállítások"}},
    {"QPrintPropertiesDialog",
     "There are conflicts in some advanced options. Do you want to fix them?",
     {30840, u"A speciális beállítások ütköznek. Kijavítod őket?"}},
    {"QPrintPropertiesWidget", "Page", {30841, u"Oldal"}},
    {"QPrintPropertiesWidget", "Advanced", {30842, u"Speciális"}},
    {"QPrintPropertiesWidget",
     "There are conflicts in some options. Please fix them.",
     {30843, u"Néhány beállítás ütközik. Javítsd ki őket!"}},
    {"QPrintSettingsOutput", "Copies", {30844, u"Példányok"}},
    {"QPrintSettingsOutput", "Print range", {30845, u"Nyomtatandó"}},
    {"QPrintSettingsOutput", "Print all", {30846, u"Minden oldal"}},
    {"QPrintSettingsOutput", "Pages from", {30847, u"Oldalak:"}},
    {"QPrintSettingsOutput", "to", {30848, u"–"}},
    {"QPrintSettingsOutput", "Pages", {30849, u"Oldalak"}},
    {"QPrintSettingsOutput", "Current Page", {30850, u"Ez az oldal"}},
    {"QPrintSettingsOutput", "Selection", {30851, u"Kijelölés"}},
    {"QPrintSettingsOutput", "Page Set:", {30852, u"Oldalak köre:"}},
    {"QPrintSettingsOutput", "Output Settings", {30853, u"Kimenet"}},
    {"QPrintSettingsOutput", "Copies:", {30854, u"Példányszám:"}},
    {"QPrintSettingsOutput", "Collate", {30855, u"Leválogatás"}},
    {"QPrintSettingsOutput", "Reverse", {30856, u"Fordított sorrend"}},
    {"QPrintSettingsOutput", "Options", {30857, u"Beállítások"}},
    {"QPrintSettingsOutput", "Color Mode", {30858, u"Színek"}},
    {"QPrintSettingsOutput", "Color", {30859, u"Színes"}},
    {"QPrintSettingsOutput", "Grayscale", {30860, u"Szürkeárnyalatos"}},
    {"QPrintSettingsOutput", "Double Sided Printing", {30861, u"Kétoldalas nyomtatás"}},
    {"QPrintSettingsOutput", "Off", {30862, u"Nincs"}},
    {"QPrintSettingsOutput", "Long side binding", {30863, u"Hosszú oldal mentén"}},
    {"QPrintSettingsOutput", "Short side binding", {30864, u"Rövid oldal mentén"}},
    {"QPrintSettingsOutput",
     "Specify pages or ranges separated by commas. Ranges are specified by two numbers "
     "separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.",
     {30865, u"Oldalak és tartományok, vesszővel elválasztva; a tartomány két szám, köztük "
             u"kötőjellel. Például a 3,5-7,9 a 3., 5., 6., 7. és 9. oldalt nyomtatja."}},
    {"QPageSetupWidget", "Paper", {30866, u"Papír"}},
    {"QPageSetupWidget", "Page size:", {30867, u"Papírméret:"}},
    {"QPageSetupWidget", "Width:", {30868, u"Szélesség:"}},
    {"QPageSetupWidget", "Height:", {30869, u"Magasság:"}},
    {"QPageSetupWidget", "Paper source:", {30870, u"Papírforrás:"}},
    {"QPageSetupWidget", "Orientation", {30871, u"Tájolás"}},
    {"QPageSetupWidget", "Portrait", {30872, u"Álló"}},
    {"QPageSetupWidget", "Landscape", {30873, u"Fekvő"}},
    {"QPageSetupWidget", "Reverse landscape", {30874, u"Fordított fekvő"}},
    {"QPageSetupWidget", "Reverse portrait", {30875, u"Fordított álló"}},
    {"QPageSetupWidget", "Margins", {30876, u"Margók"}},
    {"QPageSetupWidget", "top margin", {30877, u"felső margó"}},
    {"QPageSetupWidget", "left margin", {30878, u"bal margó"}},
    {"QPageSetupWidget", "right margin", {30879, u"jobb margó"}},
    {"QPageSetupWidget", "bottom margin", {30880, u"alsó margó"}},
    {"QPageSetupWidget", "Page Layout", {30881, u"Elrendezés"}},
    {"QPageSetupWidget", "Page order:", {30882, u"Oldalsorrend:"}},
    {"QPageSetupWidget", "Pages per sheet:", {30883, u"Oldal laponként:"}},
    {"QPageSetupWidget", "Millimeters (mm)", {30884, u"Milliméter (mm)"}},
    {"QPageSetupWidget", "Inches (in)", {30885, u"Hüvelyk (in)"}},
    {"QPageSetupWidget", "Points (pt)", {30886, u"Pont (pt)"}},
    {"QPageSetupWidget", "Custom", {30887, u"Egyéni"}},
};

QByteArray keyOf(const QByteArray &context, const char *source) { return context + '\n' + source; }

} // namespace

QtTexts::QtTexts()
{
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this, &QtTexts::follow);
    follow();
}

QtTexts::~QtTexts()
{
    QCoreApplication::removeTranslator(&m_installed);
    QCoreApplication::removeTranslator(this);
}

/// File dialogs ask from a thread of their own: nothing changes while a translator is in use.
void QtTexts::follow()
{
    QCoreApplication::removeTranslator(&m_installed);
    QCoreApplication::removeTranslator(this);
    m_texts.clear();
    if (currentLanguage() != English) // Qt's own
        for (const Row &row : kRows)
            for (const QByteArray &context : QByteArray(row.contexts).split(' '))
                m_texts.insert(keyOf(context, row.source), txt(row.text));
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    const bool there = m_installed.load(interfaceLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                                        folder);
    QCoreApplication::installTranslator(this);
    if (there) QCoreApplication::installTranslator(&m_installed); // the last one is asked first
}

QString QtTexts::translate(const char *context, const char *source, const char *, int) const
{
    return m_texts.value(keyOf(context, source));
}

} // namespace refhost
