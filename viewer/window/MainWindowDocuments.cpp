// The open documents of the main window: their tabs, opening and closing.
#include "window/MainWindow.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cmath>

#include "dialogs/CalibrationFiles.h"
#include "dialogs/TextDialog.h"
#include "document/PictureFiles.h"
#include "document/Session.h"
#include "platform/Boxes.h"
#include "platform/Settings.h"
#include "platform/Text.h"

namespace kestview {

void MainWindow::AddDocument(std::unique_ptr<Document> document) {
    Document& added = *document;
    added.onChange = [this, &added](unsigned change) { OnDocumentChanged(added, change); };
    documents.push_back(std::move(document));
    UpdateTabs();
    // The row of tabs takes its room before the picture is scrolled to its place.
    Arrange();
    Activate(&added);
}

void MainWindow::AddNewPicture(std::unique_ptr<CcImage> image, Document* like, POINT origin) {
    auto document = std::make_unique<Document>(std::move(image));
    if (like) document->CalibrateLike(*like, origin);
    document->SetModified(true);
    AddDocument(std::move(document));
}

void MainWindow::Activate(Document* document) {
    if (active && active != document) active->PreviewBands(false, nullptr);
    active = document;
    // All let go of the old document before any of them does something that could fail.
    for (DocumentPane* pane : AllPanes()) pane->SetDocument(document);
    view.SetDocument(document);
    tools.SetCurrentImage(document ? &document->Image() : nullptr);
    for (DocumentPane* pane : AllPanes()) pane->Refresh(EverythingChanged);
    UpdateTabs();
    UpdateTitle();
    UpdateCommands();
    statusBar.ShowMessage("");
    statusBar.ShowPixel(nullptr, nullptr);
    statusBar.ShowPicture(active, view.Magnification());
}

bool MainWindow::MayClose(Document& document) {
    if (!document.IsModified()) return true;
    Activate(&document);
    const int answer = AskYesNoCancel(window, "Save the changes to " + document.Name() + " in a session?");
    return answer == IDNO || (answer == IDYES && SaveDocument(document, false));
}

bool MainWindow::SaveDocument(Document& document, bool isPathAsked) {
    if (document.Calibration() && document.calibrationPath.empty()) {
        const int answer = AskYesNoCancel(
            window,
            "The calibration is in no file yet, and a session only names its file.\n\nSave the calibration first?");
        if (answer != IDYES && answer != IDNO) return false;
        if (answer == IDYES && !SaveCalibration(window, document)) return false;
    }
    std::string path = document.sessionPath;
    if (path.empty() || isPathAsked) {
        const auto asked = AskSavePath(window, "Save Session", "KestView sessions (*.kvs)|*.kvs|All files (*.*)|*.*|",
                                       "kvs", document.Name() + ".kvs", path);
        if (!asked) return false;
        path = *asked;
    }
    std::string error;
    if (!SaveSession(document, path, error)) {
        ShowError(window, error);
        return false;
    }
    KeptSettings().NoteRecentFile(path);
    statusBar.ShowMessage("Saved " + FileNameOf(path));
    return true;
}

bool MainWindow::CloseDocument(Document& document) {
    if (!MayClose(document)) return false;
    Discard(document);
    return true;
}

void MainWindow::Discard(Document& document) {
    const auto at =
        std::find_if(documents.begin(), documents.end(), [&](const auto& held) { return held.get() == &document; });
    const auto index = static_cast<std::size_t>(at - documents.begin());
    // First the others let go of it, then it is deleted.
    std::unique_ptr<Document> closed = std::move(*at);
    documents.erase(at);
    if (active == closed.get())
        Activate(documents.empty() ? nullptr : documents[std::min(index, documents.size() - 1)].get());
    UpdateTabs();
    Arrange();
}

bool MainWindow::MayCloseAll() {
    for (std::size_t i = documents.size(); i-- > 0;)
        if (!MayClose(*documents[i])) return false;
    return true;
}

bool MainWindow::CloseAll() {
    // Nothing is lost when the last question is answered with Cancel: first all are asked about, then all go.
    if (!MayCloseAll()) return false;
    while (!documents.empty()) Discard(*documents.back());
    return true;
}

namespace {

/// A page from 1 to the last one; 0 when the user wants none.
int AskPage(HWND owner, const std::string& fileName, int pages) {
    const std::string title = Format("Page 1 to %d of ", pages) + fileName;
    for (std::string typed = "1";;) {
        const auto answer = AskText(owner, title.c_str(), "Page:", typed);
        if (!answer) return 0;
        typed = *answer;
        const double page = ParseNumber(typed).value_or(0);
        if (page >= 1 && page <= pages && page == std::floor(page)) return static_cast<int>(page);
    }
}

}  // namespace

void MainWindow::OpenFile(const std::string& path) {
    std::string error, warning;
    std::unique_ptr<Document> document;
    const Question mayOpen = [this](const std::string& question) { return AskYesNo(window, question); };
    const auto page = [&](int pages) { return AskPage(window, FileNameOf(path), pages); };
    KestPictureFile file;
    KestJudgePictureFile(path.c_str(), &file);
    const bool isBmp = file.eReason != KEST_PICTURE_NOT_READ && file.eReason != KEST_PICTURE_NOT_BMP;
    if (!isBmp && IsSessionFile(path)) {
        document = OpenSession(path, error, warning, mayOpen);
    } else if (auto image = OpenPicture(path, file, error, warning, {mayOpen, page})) {
        document = std::make_unique<Document>(std::move(image));
        document->picturePath = path;
    }
    if (!document) {
        ShowError(window, error);
        return;
    }
    KeptSettings().NoteRecentFile(path);
    AddDocument(std::move(document));
    if (!warning.empty()) ShowNote(window, warning);
}

void MainWindow::OnDocumentChanged(Document& document, unsigned change) {
    if (change & TitleChanged) {
        UpdateTabs();
        UpdateTitle();
    }
    if (&document != active) return;
    view.Refresh(change);
    for (DocumentPane* pane : AllPanes()) pane->Refresh(change);
    // Tools get no picture whose pixels hold the colours of bands.
    const bool isPainted = document.IsPreviewing() && document.Class().isColour;
    tools.SetCurrentImage(isPainted ? nullptr : &document.Image());
    if (change & PictureChanged) tools.PixelsChanged();
    if (change & (ViewChanged | PictureChanged)) statusBar.ShowPicture(active, view.Magnification());
    UpdateCommands();
}

void MainWindow::UpdateTabs() {
    const int count = static_cast<int>(documents.size());
    for (int i = static_cast<int>(SendMessageA(tabs, TCM_GETITEMCOUNT, 0, 0)); i > count; --i)
        SendMessageA(tabs, TCM_DELETEITEM, static_cast<WPARAM>(i - 1), 0);
    for (int i = 0; i < count; ++i) {
        Document& document = *documents[static_cast<std::size_t>(i)];
        std::string text = document.Name() + (document.IsModified() ? " *" : "");
        TCITEMA item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text.data();
        const bool isPresent = i < SendMessageA(tabs, TCM_GETITEMCOUNT, 0, 0);
        SendMessageA(tabs, isPresent ? TCM_SETITEMA : TCM_INSERTITEMA, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(&item));
        if (&document == active) SendMessageA(tabs, TCM_SETCURSEL, static_cast<WPARAM>(i), 0);
    }
}

void MainWindow::UpdateTitle() {
    const std::string title =
        active ? active->Name() + (active->IsModified() ? " * - KestView" : " - KestView") : "KestView";
    if (TextOf(window) != title) SetWindowTextA(window, title.c_str());
}

}  // namespace kestview
