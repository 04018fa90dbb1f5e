# Makes code of the style files: one procedure an element, which calls its Reset with the options of a style. A
# VBA module, a VBScript file, a JScript file and a C++ header, so that a host need not count arguments. Called with
# -DIDL, -DSTYLES (a folder) and -DOUTPUT (a folder).

cmake_minimum_required(VERSION 3.20)

# The element of a style file, its class behind "OutputTemplate", and the elements that it takes.
set(elements
  "author Author" "title Title author" "newspaper Newspaper" "publisher Publisher" "year Year" "page Page"
  "edition Edition page" "multi-volume MultiVol" "issue Issue" "refers-to RefersTo author page publisher"
  "online Online" "place Place" "medium Medium" "date-time DateTime" "citation Citation")
set(styles mla apa turabian ama)

# What CMake takes for its own: brackets and semicolons.
function(read_text file result)
  file(READ ${file} text)
  string(REPLACE "[" "<" text "${text}")
  string(REPLACE "]" ">" text "${text}")
  string(REPLACE ";" "\t" text "${text}")
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

# The names of an element's options, in the order of Reset's parameters.
function(read_options class result)
  string(REGEX MATCH "interface _OutputTemplate${class} :.*" from_here "${idl}")
  string(REGEX MATCH "HRESULT Reset\\([^\t]*\t" reset "${from_here}")
  string(REGEX MATCHALL "(VARIANT_BOOL|BSTR|short|long|VARIANT|IDispatch)[ \n]+\\*?[A-Za-z]+" names "${reset}")
  list(TRANSFORM names REPLACE "^[A-Z_a-z]+[ \n]+\\*?" "")
  set(${result} ${names} PARENT_SCOPE)
endfunction()

# One value in one language: BASIC, JScript or C++.
function(write_value value language result)
  if(value MATCHES "^@(.*)$")
    set(text "${CMAKE_MATCH_1}Template")
  elseif(value MATCHES "^<(.*)>$")
    string(REPLACE ", " "\t" flags "${CMAKE_MATCH_1}")
    string(REGEX MATCHALL "[a-z]+" flags "${flags}")
    list(JOIN flags ", " flags)
    if(language STREQUAL "basic")
      string(REPLACE "true" "True" flags "${flags}")
      string(REPLACE "false" "False" flags "${flags}")
      set(text "Array(${flags})")
    elseif(language STREQUAL "js")
      set(text "<${flags}>")
    else()
      set(text "Flags({${flags}}).value")
    endif()
  elseif(value MATCHES "^\"(.*)\"$")
    if(NOT language STREQUAL "cpp")
      set(text "${value}")
    else()
      # As octal numbers, since a header needs its angle brackets.
      string(REPLACE "<" "\\133" value "${value}")
      string(REPLACE ">" "\\135" value "${value}")
      set(text "Text(L${value}).value")
    endif()
  elseif(value STREQUAL "true" OR value STREQUAL "false")
    if(language STREQUAL "basic")
      string(SUBSTRING ${value} 0 1 first)
      string(TOUPPER ${first} first)
      string(SUBSTRING ${value} 1 -1 rest)
      set(text "${first}${rest}")
    elseif(language STREQUAL "cpp")
      string(TOUPPER "VARIANT_${value}" text)
    else()
      set(text "${value}")
    endif()
  else()
    set(text "${value}")
  endif()
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

read_text(${IDL} idl)
foreach(style IN LISTS styles)
  read_text(${STYLES}/${style}.style text_${style})
  string(REGEX MATCH "style.name = \"([A-Za-z]+)\"" whole "${text_${style}}")
  set(name_${style} ${CMAKE_MATCH_1})
endforeach()

set(basic "")
set(vba "")
set(js "")
set(cpp "")
foreach(row IN LISTS elements)
  separate_arguments(row)
  list(POP_FRONT row element class)
  read_options(${class} options)
  set(others "")
  set(others_js "")
  set(others_vba "")
  set(others_cpp "")
  foreach(other IN LISTS row)
    string(APPEND others ", ${other}Template")
    string(APPEND others_vba ", ByVal ${other}Template As Object")
    string(APPEND others_cpp ", IDispatch* ${other}Template")
  endforeach()
  set(head "Public Sub Reset${class}(element, style${others})\n")
  set(head_vba "Public Sub Reset${class}(ByVal element As Object, ByVal style As String${others_vba})\n")
  set(cases "")
  string(APPEND js "\nfunction Reset${class}(element, style${others}) {\n    switch (style.toUpperCase()) {\n")
  string(APPEND cpp
    "\ninline HRESULT Reset${class}(IDispatch* element, const wchar_t* style${others_cpp}) {\n"
    "    const Element<_OutputTemplate${class}> e(element);\n"
    "    if (e.value == nullptr) return E_NOINTERFACE;\n")
  foreach(style IN LISTS styles)
    foreach(language IN ITEMS basic js cpp)
      set(values_${language} "")
    endforeach()
    foreach(option IN LISTS options)
      if(NOT text_${style} MATCHES "\n${element}\\.${option} = (\"[^\"\n]*\"|<[^>\n]*>|[^ \n]+)")
        message(FATAL_ERROR "${style}.style has no ${element}.${option}")
      endif()
      set(value "${CMAKE_MATCH_1}")
      foreach(language IN ITEMS basic js cpp)
        write_value("${value}" ${language} written)
        string(APPEND values_${language} "${comma_${language}}${written}")
        set(comma_${language} ", ")
      endforeach()
    endforeach()
    foreach(language IN ITEMS basic js cpp)
      set(comma_${language} "")
    endforeach()
    string(TOUPPER ${name_${style}} upper)
    string(APPEND cases "        Case \"${upper}\": element.Reset ${values_basic}\n")
    string(APPEND js "        case \"${upper}\": element.Reset(${values_js})\t break\t\n")
    string(APPEND cpp
      "    if (IsStyle(style, L\"${name_${style}}\")) return e.value->Reset(${values_cpp})\t\n")
  endforeach()
  set(body "    Select Case UCase(style)\n${cases}        Case Else: Err.Raise 5, \"Reset${class}\", \"There is no style \" & style\n    End Select\nEnd Sub\n")
  string(APPEND basic "\n${head}${body}")
  string(APPEND vba "\n${head_vba}${body}")
  string(APPEND js "        default: throw new Error(5, \"There is no style \" + style)\t\n    }\n}\n")
  string(APPEND cpp "    return E_INVALIDARG\t\n}\n")
endforeach()

function(write_file name text)
  string(REPLACE "\t" ";" text "${text}")
  string(REPLACE "<" "[" text_js "${text}")
  string(REPLACE ">" "]" text_js "${text_js}")
  if(name MATCHES "js$|vbs$|bas$")
    set(text "${text_js}")
  endif()
  file(WRITE ${OUTPUT}/${name} "${text}")
endfunction()

set(about "The options of MLA, APA, Turabian and AMA, made from the style files of the sample host.")
write_file(QuorvelPresets.vbs "' ${about}\n'     ResetAuthor author, \"APA\"\n${basic}")
write_file(QuorvelPresets.bas "Attribute VB_Name = \"QuorvelPresets\"\n' ${about}\n'     ResetAuthor author, \"APA\"\nOption Explicit\n${vba}")
write_file(QuorvelPresets.js "// ${about}\n//     ResetAuthor(author, \"APA\")\t\n${js}")
write_file(QuorvelPresets.h "// ${about}
//     quorvel_presets::ResetAuthor(author, L\"APA\")\t
// S_OK, E_NOINTERFACE for another element, E_INVALIDARG for another style.
#pragma once

#include <QuorvelTemplate.h>
#include <oleauto.h>

#include <initializer_list>
#include <type_traits>

namespace quorvel_presets {

template <class Interface>
struct Element {
    Interface* value = nullptr\t
    explicit Element(IDispatch* object) {
        if (object != nullptr) object->QueryInterface(__uuidof(Interface), reinterpret_cast<void**>(&value))\t
    }
    Element(const Element&) = delete\t
    Element& operator=(const Element&) = delete\t
    ~Element() {
        if (value != nullptr) value->Release()\t
    }
}\t

struct Text {
    BSTR value\t
    explicit Text(const wchar_t* text) : value(SysAllocString(text)) {}
    Text(const Text&) = delete\t
    Text& operator=(const Text&) = delete\t
    ~Text() { SysFreeString(value)\t }
}\t

struct Flags {
    VARIANT value{}\t
    explicit Flags(std::initializer_list<bool> flags) {
        value.vt = VT_ARRAY | VT_BOOL\t
        value.parray = SafeArrayCreateVector(VT_BOOL, 0, static_cast<ULONG>(flags.size()))\t
        LONG i = 0\t
        for (const bool flag : flags) {
            VARIANT_BOOL element = flag ? VARIANT_TRUE : VARIANT_FALSE\t
            SafeArrayPutElement(value.parray, &i, &element)\t
            ++i\t
        }
    }
    Flags(const Flags&) = delete\t
    Flags& operator=(const Flags&) = delete\t
    ~Flags() { VariantClear(&value)\t }
}\t

inline bool IsStyle(const wchar_t* style, const wchar_t* name) {
    return CompareStringOrdinal(style, -1, name, -1, TRUE) == CSTR_EQUAL\t
}
${cpp}
}  // namespace quorvel_presets
")
