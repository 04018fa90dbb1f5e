#pragma once

#include <windows.h>

/// What the user can order: the menu and its keys as data.
namespace sample {

enum Command : WORD {
    kOpen = 100,
    kSave,
    kSaveAs,
    kExit,
    kUndo,
    kEditField,
    kCopyRtf,
    kShowTrace,
    kShowList,
    kShowNotes,
    kShowCitations,
    /// One a style, from here on.
    kFirstStyle = 150,
};

struct MenuEntry {
    /// 0 begins a menu, or with an empty caption draws a line.
    WORD command;
    const wchar_t* caption;
};

// The styles are put behind the last entry of the View menu.
constexpr MenuEntry kMenu[] = {
    {0, L"&File"},
    {kOpen, L"&Open...\tCtrl+O"},
    {kSave, L"&Save\tCtrl+S"},
    {kSaveAs, L"Save &as..."},
    {0, L""},
    {kExit, L"E&xit"},
    {0, L"&Edit"},
    {kUndo, L"&Undo\tCtrl+Z"},
    {0, L""},
    {kEditField, L"Edit &field...\tF2"},
    {kCopyRtf, L"&Copy all as rich text\tCtrl+Shift+C"},
    {0, L"&View"},
    {kShowList, L"Reference &list"},
    {kShowNotes, L"&Notes"},
    {kShowCitations, L"&Citations"},
    {0, L""},
    {kShowTrace, L"&Trace of procedures\tCtrl+T"},
    {0, L""},
};

constexpr ACCEL kKeys[] = {
    {FVIRTKEY | FCONTROL, 'O', kOpen},           {FVIRTKEY | FCONTROL, 'S', kSave},
    {FVIRTKEY | FCONTROL, 'Z', kUndo},           {FVIRTKEY, VK_F2, kEditField},
    {FVIRTKEY | FCONTROL, 'T', kShowTrace},      {FVIRTKEY | FCONTROL | FSHIFT, 'C', kCopyRtf},
    {FVIRTKEY | FCONTROL, '1', kFirstStyle},     {FVIRTKEY | FCONTROL, '2', kFirstStyle + 1},
    {FVIRTKEY | FCONTROL, '3', kFirstStyle + 2}, {FVIRTKEY | FCONTROL, '4', kFirstStyle + 3},
};

}  // namespace sample
