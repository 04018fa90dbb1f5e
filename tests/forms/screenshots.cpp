// Pictures of forms, for the documents and for looking at them: FormPictures FOLDER. Each form is shown as a host shows
// it, late-bound with elements that have the options of a style, and drawn by the system into
// FOLDER/<form>-<state>-<per cent>.bmp.

#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include "com/late_bound.h"
#include "data/data_file.h"
#include "data/style.h"
#include "editing.h"
#include "writing/styled_elements.h"

namespace {

using namespace sample;

constexpr UINT kDensityChanged = 0x02E0;

/// A form with a text in it.
struct Picture {
    const wchar_t* form;
    /// "filled" and "empty" are for the documents, the others for whoever looks at them.
    const wchar_t* state;
    std::int16_t type;
    const wchar_t* style;
    /// The name of the element, or of a variant of it, in style files; null: the form is shown without one.
    const wchar_t* element;
    const wchar_t* text = L"";
    const wchar_t* secondText = L"";
};

// One a line.
// clang-format off
constexpr Picture kPictures[] = {
    {L"AuthorForm", L"filled", 0, L"turabian", L"author", L"Twain, Mark [Samuel Langhorne Clemens], William Dean Howells, et al."},
    {L"AuthorForm", L"empty", 0, L"mla", L"author"},
    {L"AuthorForm", L"many", 0, L"apa", L"author", L"Kuhn, T. S., Smith, A., Jr., Vygotsky, L. S., Piaget, J., Bruner, J. S., Luria, A. R., Cole, M., & Rogoff, B."},
    {L"AuthorForm", L"discussant", 0, L"mla", L"author", L"Smith, Ann", L"Discussant"},
    {L"TitleForm", L"filled", 1, L"mla", L"title", L"the rise and fall of the third reich: a history of nazi germany"},
    {L"TitleForm", L"empty", 1, L"mla", L"title"},
    {L"TitleForm", L"apa", 1, L"apa", L"title", L"The Structure of Scientific Revolutions", L"Doctoral dissertation"},
    {L"TitleForm", L"turabian", 1, L"turabian", L"title", L"the structure of scientific revolutions [La structure]"},
    {L"TitleForm", L"ama", 2, L"ama", L"title", L"The Lancet of the North"},
    {L"NewspaperTitleForm", L"filled", 4, L"mla", L"newspaper", L"Globe and Mail [Toronto]"},
    {L"NewspaperTitleForm", L"empty", 4, L"mla", L"newspaper"},
    {L"PublisherForm", L"filled", 5, L"mla", L"publisher", L"Anchor-Doubleday"},
    {L"PublisherForm", L"empty", 5, L"apa", L"publisher"},
    {L"PublisherForm", L"co-publisher", 5, L"turabian", L"publisher", L"Vintage-Knopf; London: Random House"},
    {L"YearForm", L"filled", 6, L"mla", L"year", L"[1990?]"},
    {L"YearForm", L"empty", 6, L"mla", L"year"},
    {L"YearForm", L"apa", 6, L"apa", L"year", L"in press"},
    {L"PageForm", L"filled", 7, L"turabian", L"page", L"201n5"},
    {L"PageForm", L"empty", 7, L"mla", L"page"},
    {L"EditionForm", L"filled", 8, L"apa", L"edition", L"Reprinted from Child Development, 12, pp. 625-884, by J. Piaget, 1925"},
    {L"EditionForm", L"empty", 8, L"mla", L"edition"},
    {L"EditionForm", L"number", 8, L"mla", L"edition", L"2nd ed."},
    {L"EditionForm", L"book", 8, L"mla", L"edition", L"1944. New York: Random, 1992"},
    {L"EditorForm", L"filled", 9, L"mla", L"author", L"Mendelson, Edward, and Ann Smith", L"Editor"},
    {L"EditorForm", L"empty", 9, L"mla", L"author"},
    {L"MultipartWorkForm", L"filled", 10, L"turabian", L"multi-volume", L"Studies in Early American Literature, edited by Edwin H. Cady, n.s., vol. 3"},
    {L"MultipartWorkForm", L"empty", 10, L"turabian", L"multi-volume"},
    {L"MultipartWorkForm", L"mla", 10, L"mla", L"multi-volume", L"Vol. 3 of A History of England. 4 vols. 1968-83", L"Multi-volume work"},
    {L"IssueForm", L"filled", 11, L"apa", L"issue", L"4, Suppl. 2"},
    {L"IssueForm", L"empty", 11, L"apa", L"issue"},
    {L"IssueForm", L"special", 11, L"mla", L"issue", L"Ethics of War. Ed. Ann Smith. Spec. issue", L"Special issue"},
    {L"RefersToForm", L"filled", 12, L"mla", L"refers-to", L"52.4 (1981): 688-705; 53.1 (1981): 164-80", L"Serial article"},
    {L"RefersToForm", L"empty", 12, L"mla", L"refers-to"},
    {L"RefersToForm", L"regular", 12, L"mla", L"refers-to", L"Rev. of Life in the North, by Joe Bill"},
    {L"RefersToForm", L"series", 12, L"mla", L"refers-to", L"3rd ser.", L"Series"},
    {L"RefersToForm", L"apa", 12, L"apa", L"refers-to", L"[Review of the book Life in the North, by J. Bill]", L"Review of"},
    {L"OnlineForm", L"filled", 13, L"apa", L"online", L"Retrieved from ERIC database. (ED123456)"},
    {L"OnlineForm", L"empty", 13, L"mla", L"online"},
    {L"OnlineForm", L"doi", 13, L"apa", L"online", L"doi:10.1037/0021-843X.111.4.599"},
    {L"KeywordsForm", L"filled", 14, L"mla", L"", L"paradigm, normal science, revolution"},
    {L"KeywordsForm", L"empty", 14, L"mla", L""},
    {L"PlaceForm", L"filled", 15, L"mla", L"place", L"[Washington, D.C.]"},
    {L"PlaceForm", L"empty", 15, L"mla", L"place"},
    {L"PublicationMediumForm", L"filled", 16, L"mla", L"medium", L"CD-ROM. Shakespeare on Disc. New York: Random, June 1993. Vers. 2. Disc 4.", L"CD"},
    {L"PublicationMediumForm", L"empty", 16, L"mla", L"medium"},
    {L"PublicationMediumForm", L"microform", 16, L"mla", L"medium", L"Microform. NewsBank: Art 12 (1992): fiche 42, grids 5-12.", L"Microform"},
    {L"DateTimeForm", L"filled", 17, L"mla", L"date-time", L"1 Sept. 2011", L"12:57:58 p.m. PDT"},
    {L"DateTimeForm", L"empty", 17, L"mla", L"date-time"},
    {L"NotesForm", L"filled", 18, L"mla", nullptr, L"The third edition has an index.\r\nAsk for it at the library."},
    {L"NotesForm", L"empty", 18, L"mla", nullptr},
};
// clang-format on

void runMessages() {
    constexpr DWORD kWhile = 300;
    const DWORD end = GetTickCount() + kWhile;
    while (GetTickCount() < end) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        Sleep(10);
    }
}

/// What is on the screen where the window is.
void save(HWND window, const std::wstring& path) {
    RECT place = {};
    GetWindowRect(window, &place);
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    BITMAPINFO description = {};
    description.bmiHeader = {sizeof(BITMAPINFOHEADER), width, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* pixels = nullptr;
    const HBITMAP bitmap = CreateDIBSection(screen, &description, DIB_RGB_COLORS, &pixels, nullptr, 0);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
    GdiFlush();
    const DWORD size = static_cast<DWORD>(width * height * 4);
    constexpr WORD kBitmapFile = 0x4D42;
    const DWORD offset = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    const BITMAPFILEHEADER header = {kBitmapFile, offset + size, 0, 0, offset};
    std::ofstream file(std::filesystem::path(path), std::ios::binary);
    file.write(reinterpret_cast<const char*>(&header), sizeof(header));
    file.write(reinterpret_cast<const char*>(&description.bmiHeader), sizeof(description.bmiHeader));
    file.write(static_cast<const char*>(pixels), static_cast<std::streamsize>(size));
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

void drawAll(const std::wstring& folder) {
    const LateBoundObject main = LateBoundObject::create(L"QuorvelTemplate.Main2");
    // It owns the forms, which stand beside it.
    const HWND owner = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    std::map<std::wstring, Style> styles;
    std::map<std::wstring, StyledElements> elements;
    for (const std::wstring name : {L"mla", L"apa", L"turabian", L"ama"}) {
        const auto style = styles.emplace(name, readStyle(dataFile(L"styles/" + name + L".style"))).first;
        elements.try_emplace(name, main, style->second);
    }
    {
        Editing editing(main, owner, [](const std::wstring& /*help*/) {});
        for (const Picture& picture : kPictures) {
            const StyledElement* const element = picture.element != nullptr
                                                     ? elements.at(picture.style).element(picture.element, picture.type)
                                                     : nullptr;
            editing.show(picture.type, element != nullptr ? element->object : LateBoundObject(),
                         {picture.text, picture.secondText}, {});
            const HWND form = editing.form();
            const std::wstring name = folder + L"/" + picture.form + L"-" + picture.state + L"-";
            for (const int percent : {100, 200}) {
                if (percent != 100) {
                    const UINT density = static_cast<UINT>(USER_DEFAULT_SCREEN_DPI * percent / 100);
                    // As large as the system proposes.
                    RECT place = {};
                    GetWindowRect(form, &place);
                    place.right += (place.right - place.left) * (percent - 100) / 100;
                    place.bottom += (place.bottom - place.top) * (percent - 100) / 100;
                    SendMessageW(form, kDensityChanged, MAKEWPARAM(density, density), reinterpret_cast<LPARAM>(&place));
                }
                HideCaret(GetFocus());
                RedrawWindow(form, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
                runMessages();
                save(form, name + std::to_wstring(percent) + L".bmp");
            }
            editing.hide();
            runMessages();
        }
    }
    DestroyWindow(owner);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 2) {
        std::puts("usage: FormPictures FOLDER");
        return 2;
    }
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int status = 0;
    try {
        drawAll(arguments[1]);
    } catch (const ComError& error) {
        std::printf("%ls\n", error.message.c_str());
        status = 1;
    }
    CoUninitialize();
    return status;
}
