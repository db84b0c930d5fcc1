// KestView as a program: how files reach it, what it remembers, and the ROI work that the tour leaves out.
#include <shlobj.h>

#include "document/Session.h"
#include "res/Resource.h"
#include "support/Printer.h"
#include "viewer/Driver.h"
#include "viewer/SampleDocuments.h"

namespace test {
namespace {

constexpr int width = 320, height = 240;

/// A picture whose values rise from left to right.
class Ramp {
public:
    explicit Ramp(const char* path) : file(path) {
        CcGrayImage256 image;
        image.MakeBlankBMP(height, width, 0, "ramp");
        auto* pixels = static_cast<unsigned char*>(image.GetBitMapImageData());
        for (int i = 0; i < width * height; ++i) pixels[i] = static_cast<unsigned char>(i % width * 255 / (width - 1));
        image.SaveBMPFile(file.Path());
    }

private:
    TemporaryFile file;
};

void Close(Driver& view) {
    PostMessageA(view.Main(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(Driver::WaitFor([&] { return !view.IsRunning(); }));
}

std::wstring FullPath(const wchar_t* name) {
    wchar_t path[MAX_PATH] = {};
    GetFullPathNameW(name, MAX_PATH, path, nullptr);
    return path;
}

TEST(Files, ComeFromTheCommandLineByDragAndDropAndFromTheRecentOnes) {
    const Ramp first("first.bmp"), second("second.bmp");
    {
        Driver view(L"first.bmp missing.bmp");
        ASSERT_TRUE(view.Main());
        EXPECT_EQ(view.AnswerBox(VK_RETURN).substr(0, 17), L"There is no file\n") << "in plain words";
        EXPECT_EQ(view.Title(), L"first - KestView");
        view.Drop(FullPath(L"second.bmp"));
        EXPECT_TRUE(view.WaitForTitle(L"second - KestView")) << "dropped on the window";
        // A file with pages, and names whose extension says what is written.
        const TemporaryFile pages("pages.tif", Tiff({{2, 1, 8, 1, Samples(8, {1, 2})}, {1, 1, 8, 1, Samples(8, {5})}})),
            saved("saved.png");
        view.Drop(FullPath(L"pages.tif"));
        ASSERT_TRUE(view.WaitForDialog(L"Page 1 to 2 of pages.tif"));
        view.Type(L"2");
        view.Press({VK_RETURN});
        EXPECT_TRUE(view.WaitForTitle(L"pages (page 2 of 2) - KestView"));
        for (const wchar_t* name : {L"saved.gif", L"saved.png"}) {
            view.Press({VK_MENU, 'F'});
            view.Press({'P'});
            ASSERT_TRUE(view.AnswerFileDialog(L"Save Picture", FullPath(name)));
            if (name[6] == 'g') {
                EXPECT_NE(view.AnswerBox(VK_RETURN).find(L"has none of these extensions"), std::wstring::npos);
            }
        }
        EXPECT_TRUE(Driver::WaitFor([&] { return saved.Content().size() > 8 && saved.Content()[1] == 'P'; }));
        Close(view);
    }
    Driver view(L"", true);
    ASSERT_TRUE(view.Main());
    view.Press({VK_MENU, 'F'});
    view.Press({'3'});
    EXPECT_TRUE(view.WaitForTitle(L"first - KestView")) << "the last but two";
}

TEST(Pictures, AreEditedOneByOne) {
    const Ramp first("first.bmp"), second("second.bmp");
    Driver view(L"first.bmp second.bmp");
    ASSERT_TRUE(view.WaitForTitle(L"second - KestView"));
    const auto results = [&] {
        view.PressToCopy({VK_CONTROL, VK_SHIFT, 'C'});
        return ClipboardText();
    };
    // Fitted in, as pictures open: the point is where the mouse is.
    const HWND canvas = view.Canvas();
    RECT client;
    GetClientRect(canvas, &client);
    EXPECT_EQ(client.right % width, 0) << "whole screen pixels a pixel";
    const int zoom = client.right / width;
    view.Press({VK_CONTROL, VK_SHIFT, '1'});
    view.Click(canvas, {300 * zoom + zoom - 1, 20 * zoom});
    EXPECT_NE(results().find(L"\nP.1\tPoint\t1\t0\t1\t" + std::to_wstring(300 * 255 / (width - 1)) + L"\t"),
              std::wstring::npos);

    // A name that is not finished stays with its picture.
    view.Press({VK_CONTROL, VK_TAB});
    ASSERT_TRUE(view.WaitForTitle(L"first - KestView"));
    view.Press({VK_CONTROL, VK_SHIFT, '1'});
    view.Click(canvas, {10, 10});
    view.ClickControl(IDC_ROI_RENAME);
    view.Type(L"name");
    view.Press({VK_CONTROL, VK_TAB});
    ASSERT_TRUE(view.WaitForTitle(L"second * - KestView"));
    view.Press({VK_RETURN});
    EXPECT_NE(results().find(L"\nP.1\t"), std::wstring::npos);

    // A bound is typed digit by digit; the other one gives way only as long as it must.
    view.Press({VK_CONTROL, 'T'});
    const HWND high = view.Control(IDC_BAND_HIGH_TEXT);
    view.ClickControl(IDC_BAND_ADD);
    ASSERT_TRUE(Driver::WaitFor([&] { return TextOfWindow(high) == L"255"; }));
    view.Click(high, {5, 5});
    view.TypeOver(L"180");
    EXPECT_TRUE(Driver::WaitFor([&] { return TextOfWindow(view.Control(IDC_BAND_LOW_TEXT)) == L"128"; }));
    // The other picture has no band of its own until someone takes one.
    view.Press({VK_CONTROL, VK_TAB});
    EXPECT_TRUE(Driver::WaitFor([&] { return TextOfWindow(high) == L""; }));
    const auto isAnythingInBands = [&] {
        const std::wstring table = results();
        return table.substr(table.size() - 3) != L"\t\r\n";
    };
    EXPECT_FALSE(isAnythingInBands());
    view.ClickControl(IDC_BAND_LAST);
    EXPECT_TRUE(Driver::WaitFor([&] { return TextOfWindow(high) == L"180"; })) << "the last picture's";
    EXPECT_TRUE(isAnythingInBands());
    view.ClickControl(IDC_BAND_REMOVE);
    EXPECT_FALSE(isAnythingInBands()) << "the last band is gone";

    // What stands behind a question is of the picture that it asks about: this one has a point selected, the other
    // none.
    view.Press({VK_CONTROL, 'H'});
    const auto isNote = [&](const wchar_t* note) {
        return Driver::WaitFor([&] { return TextOfWindow(view.Control(IDC_GRAPH_NOTE)) == note; });
    };
    EXPECT_TRUE(isNote(L"1 pixels"));
    view.Press({VK_CONTROL, VK_TAB});
    view.Press({VK_CONTROL, 'D'});
    EXPECT_TRUE(isNote(L"76800 pixels"));
    view.Press({VK_CONTROL, VK_TAB});
    EXPECT_TRUE(isNote(L"1 pixels"));
    PostMessageA(view.Main(), WM_CLOSE, 0, 0);
    ASSERT_TRUE(Driver::WaitFor([&] { return !IsWindowEnabled(view.Main()); }));
    EXPECT_TRUE(isNote(L"76800 pixels"));
    EXPECT_EQ(view.AnswerBox(VK_ESCAPE), L"Save the changes to second in a session?");
    view.Press({VK_CONTROL, VK_TAB});

    // While a question waits, the program is not closed under it.
    view.Press({VK_CONTROL, 'W'});
    ASSERT_TRUE(Driver::WaitFor([&] { return !IsWindowEnabled(view.Main()); }));
    PostMessageA(view.Main(), WM_CLOSE, 0, 0);
    EXPECT_EQ(view.AnswerBox('N'), L"Save the changes to first in a session?");
    EXPECT_TRUE(view.WaitForTitle(L"second * - KestView"));
    view.Press({VK_MENU, 'I'});
    view.Type(L"ch");  // Convert To, HSL
    EXPECT_TRUE(view.WaitForTitle(L"second (24-bit HSL) * - KestView"));
    view.Press({VK_CONTROL, 'W'});
    view.AnswerBox('N');
    view.Press({VK_CONTROL, 'W'});
    view.AnswerBox('N');
    Close(view);
}

TEST(Pictures, OfferTheBandsOfTheLastOneOfTheClassWithTheirChannel) {
    const TemporaryFile green("green.kvs"), gray("gray.kvs"), plain("plain.kvs");
    std::string error;
    for (const TemporaryFile* file : {&green, &gray, &plain}) {
        auto document = MakeDocument(file == &gray ? KEST_IMAGE_GRAY256 : KEST_IMAGE_RGB);
        if (file != &plain) document->SetBands({{file == &gray ? 10.0 : 70.0, 90, 0}});
        if (file == &green) document->SetChannel(2);
        document->Image().SetName(file->Path());
        ASSERT_TRUE(SaveSession(*document, file->Path(), error)) << error;
    }
    // They were opened while another pane was in front.
    Driver view(L"green.kvs gray.kvs plain.kvs");
    ASSERT_TRUE(view.WaitForTitle(L"plain.kvs - KestView"));
    view.Press({VK_CONTROL, 'T'});
    view.ClickControl(IDC_BAND_LAST);
    EXPECT_TRUE(Driver::WaitFor([&] { return TextOfWindow(view.Control(IDC_BAND_LOW_TEXT)) == L"70"; }));
    EXPECT_EQ(TextOfWindow(view.Control(IDC_BAND_CHANNEL)), L"Green");
}

TEST(Pictures, LargerThanThePageArePrintedWhole) {
    ASSERT_TRUE(InstallPrinter());
    constexpr int columns = 3000, lines = 800, border = 30;
    const TemporaryFile file("wide.bmp");
    {
        CcGrayImage256 image;
        image.MakeBlankBMP(lines, columns, 0, "wide");
        auto* pixels = static_cast<unsigned char*>(image.GetBitMapImageData());
        for (int i = 0; i < lines * columns; ++i) pixels[i] = i % columns >= columns - border ? 255 : 96;
        image.SaveBMPFile(file.Path());
    }
    Driver view(L"wide.bmp");
    ASSERT_TRUE(view.WaitForTitle(L"wide - KestView"));
    view.Press({VK_CONTROL, 'P'});
    ASSERT_TRUE(view.WaitForDialog(L"Print"));
    view.Press({VK_RETURN});
    const Picture page = TakePrintedPage();
    ASSERT_EQ(page.width, 2400);
    // The picture with its border at the right, and the paper below.
    const POINT places[] = {{1200, 320}, {2370, 320}, {2390, 320}, {1200, 630}, {1200, 650}};
    std::string levels;
    for (const POINT& at : places) levels += std::to_string(page.At(at.x, at.y) & 0xFF) + ' ';
    EXPECT_EQ(levels, "96 96 255 96 255 ");
}

TEST(Rois, AreSelectedRenamedCancelledDeletedAndBroughtBack) {
    const Ramp ramp("ramp.bmp");
    Driver view(L"ramp.bmp");
    ASSERT_TRUE(view.WaitForTitle(L"ramp - KestView"));
    view.Press({VK_CONTROL, '1'});
    const HWND canvas = view.Canvas();
    view.Press({VK_CONTROL, VK_SHIFT, '3'});
    view.Drag(canvas, {{40, 40}, {100, 90}});
    view.Press({VK_CONTROL, VK_SHIFT, '2'});
    view.Drag(canvas, {{20, 200}, {300, 200}});
    view.Press({VK_ESCAPE});
    const auto table = [&] {
        view.PressToCopy({VK_CONTROL, VK_SHIFT, 'C'});
        return ClipboardText();
    };
    const std::wstring whole = table();
    EXPECT_NE(whole.find(L"\nRect.1\tRectangle\t"), std::wstring::npos);

    // The line's profile, by the list.
    const HWND list = view.Control(IDC_ROI_LIST);
    view.Click(list, {30, 40});
    view.Press({VK_CONTROL, 'L'});
    EXPECT_TRUE(
        Driver::WaitFor([&] { return TextOfWindow(view.Control(IDC_GRAPH_NOTE)) == L"281 samples over 280 pixels"; }));

    // A move that is given up leaves everything as it was, the step that could be redone too.
    view.Press({VK_CONTROL, 'Z'});
    view.Drag(canvas, {{70, 60}, {130, 120}}, VK_ESCAPE);
    view.Press({VK_CONTROL, 'Y'});
    EXPECT_EQ(table(), whole);

    view.Click(canvas, {70, 60}, true);
    view.Press({VK_ESCAPE});
    view.Press({VK_F2});
    ASSERT_TRUE(view.WaitForDialog(L"Rename ROI")) << "selected by the right button";
    view.Type(L"\\\\server\\Fläche");
    view.Press({VK_RETURN});
    view.Press({VK_DELETE});
    EXPECT_EQ(table().find(L"Rectangle"), std::wstring::npos);
    view.Press({VK_CONTROL, 'Z'});
    EXPECT_NE(table().find(L"\n\\\\server\\Fläche\tRectangle\t"), std::wstring::npos);

    // What a user could lose is asked about: a tool has changed pixels of a picture that was saved.
    view.Press({VK_CONTROL, 'S'});
    const TemporaryFile session("ramp.kvs");
    ASSERT_TRUE(view.AnswerFileDialog(L"Save Session", FullPath(L"ramp.kvs")));
    ASSERT_TRUE(view.WaitForTitle(L"ramp - KestView"));
    SendMessageA(view.Main(), KEST_TOOL_PIXELS_CHANGED, 0, 0);
    EXPECT_EQ(view.Title(), L"ramp * - KestView");

    // A name that is a path, of a server even, is a name.
    PostMessageA(view.Main(), WM_COMMAND, ID_ROI_SAVE, 0);
    ASSERT_TRUE(view.WaitForDialog(L"Save ROI"));
    view.Press({VK_RETURN});
    EXPECT_TRUE(Driver::WaitFor([&] { return DeleteFileW(L"__server_Fläche.roi") != 0; }));
}

}  // namespace
}  // namespace test
