// The File menu.
#include <windows.h>

#include "commands/AllMenus.h"
#include "commands/Conditions.h"
#include "document/PictureFiles.h"
#include "picture/Printing.h"
#include "platform/Boxes.h"
#include "platform/Settings.h"
#include "platform/Text.h"
#include "res/Resource.h"

namespace kestview {
namespace {

void FileOpen(MainWindow& main, int) {
    if (const auto path = AskOpenPath(main, "Open", openFilters, nullptr)) main.OpenFile(*path);
}

void FileOpenRecent(MainWindow& main, int id) {
    const auto index = static_cast<std::size_t>(id - ID_FILE_RECENT_FIRST);
    // A copy: opening changes the list.
    if (index < KeptSettings().RecentFiles().size()) main.OpenFile(std::string(KeptSettings().RecentFiles()[index]));
}

/// Puts the recent files in front of the last entry.
void FillRecentFiles(HMENU menu) {
    for (int id = ID_FILE_RECENT_FIRST; id <= ID_FILE_RECENT_LAST; ++id)
        DeleteMenu(menu, static_cast<UINT>(id), MF_BYCOMMAND);
    DeleteMenu(menu, ID_FILE_RECENT_LINE, MF_BYCOMMAND);
    UINT id = ID_FILE_RECENT_FIRST;
    for (const std::string& path : KeptSettings().RecentFiles()) {
        std::string text = Format("&%u  ", id - ID_FILE_RECENT_FIRST + 1);
        for (const char c : path) text += c == '&' ? std::string("&&") : std::string(1, c);
        InsertMenuA(menu, ID_FILE_EXIT, MF_BYCOMMAND | MF_STRING, id++, text.c_str());
    }
    if (!KeptSettings().RecentFiles().empty())
        InsertMenuA(menu, ID_FILE_EXIT, MF_BYCOMMAND | MF_SEPARATOR, ID_FILE_RECENT_LINE, nullptr);
}

void FileSaveSession(MainWindow& main, int) { main.SaveDocument(*main.Active(), false); }

void FileSaveSessionAs(MainWindow& main, int) { main.SaveDocument(*main.Active(), true); }

void FileSavePicture(MainWindow& main, int) {
    Document& document = *main.Active();
    // Without an extension the dialog adds that of the chosen format, unless the name seems to have one.
    const bool hasDot = document.Name().find('.') != std::string::npos;
    const auto path = AskSavePath(main, "Save Picture", saveFilters, "bmp", document.Name() + (hasDot ? ".bmp" : ""));
    if (!path) return;
    const PlainPixels plain(document);
    const std::vector<std::string> foreign = ForeignSamples(document.Image(), *path);
    for (const std::string& samples : foreign)
        if (!AskYesNo(main, FileNameOf(samples) +
                                " holds the samples of another picture of this name, and would be taken "
                                "for the samples of this one.\n\nReplace or delete it?"))
            return;
    std::string error;
    if (!SavePicture(document.Image(), *path, error)) {
        ShowError(main, error);
        return;
    }
    for (const std::string& samples : foreign)
        if (ExtensionOf(samples) != (document.Class().isWide ? document.Class().rawSuffix : ""))
            DeleteFileA(samples.c_str());
    document.picturePath = *path;
    // Nothing is lost when the file holds all there is.
    if (!document.HasEdits() && document.RoiCount() == 0 && KeepsWholePicture(document.Image(), *path))
        document.SetModified(false);
    if (IsBmpPath(*path) && document.Size().cx * document.Image().SizeOf() % 4 != 0 && !document.Class().isWide)
        ShowNote(main, Format("The picture is %ld columns wide. Its file has rows without padding, which KestView "
                              "reads; some other programs "
                              "show such files slanted.",
                              document.Size().cx));
}

void FilePrint(MainWindow& main, int) { PrintPicture(main.View(), *main.Active(), main); }

void FileClose(MainWindow& main, int) { main.CloseDocument(*main.Active()); }

void FileExit(MainWindow& main, int) { SendMessageA(main, WM_CLOSE, 0, 0); }

constexpr Command fileEntries[] = {
    {ID_FILE_OPEN, "&Open...", "Ctrl+O", "Open a picture or a session (Ctrl+O)", FileOpen, Always},
    line,
    {ID_FILE_SAVE_SESSION, "&Save Session", "Ctrl+S", "Save picture, ROIs and calibration as a session (Ctrl+S)",
     FileSaveSession, HasPicture},
    {ID_FILE_SAVE_SESSION_AS, "Save Session &As...", "Ctrl+Shift+S", "Save the session under another name",
     FileSaveSessionAs, HasPicture},
    {ID_FILE_SAVE_PICTURE, "Save &Picture As...", "", "Save the picture as a BMP file; wide samples go beside it",
     FileSavePicture, HasPicture},
    line,
    {ID_FILE_PRINT, "P&rint...", "Ctrl+P", "Print what is shown of the picture, with its ROIs", FilePrint, HasPicture},
    {ID_FILE_CLOSE, "&Close", "Ctrl+W", "Close this picture", FileClose, HasPicture},
    line,
    FilledIn(ID_FILE_RECENT_FIRST, ID_FILE_RECENT_LAST, FileOpenRecent, Always),
    {ID_FILE_EXIT, "E&xit", "Alt+F4", "Close all pictures and the program", FileExit, Always},
};

}  // namespace

Menu FileMenu() { return {"&File", fileEntries, FillRecentFiles}; }

}  // namespace kestview
