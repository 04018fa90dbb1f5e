' How VBScript calls: variables by reference, Null, Nothing and Empty, arguments left out, arrays, classes.
Option Explicit

Class Sink
    Public Text
    Public Element

    Public Sub Add(newText, font)
        If IsObject(Element) Then
            ' The element that writes is let go and used meanwhile.
            Element.Parse "1999"
            Set Element = Nothing
        End If
        Text = Text & newText
    End Sub
End Class

Class OneArgument
    Public Text

    Public Sub Add(newText)
        Text = Text & newText
    End Sub
End Class

Class Deaf
    Public Sub Add(one, two, three)
    End Sub
End Class

Sub Check(what, actual, expected)
    If VarType(actual) <> VarType(expected) Then
        WScript.Echo "FAILED " & what & ": " & TypeName(actual) & ", not " & TypeName(expected)
    ElseIf actual <> expected Then
        WScript.Echo "FAILED " & what & ": " & actual & ", not " & expected
    End If
End Sub

Dim main, year, formatted, text, code, number
Set main = CreateObject("QuorvelTemplate.Main2.1")
Set formatted = New Sink
code = 6
Set year = main.build(code, formatted)
Check "a code by reference", code, 6
year.Reset True, False, True, "c.", True, "n.d.", False

' Parse gives a variable what it left, and nothing that is no variable.
text = "[1990?]"
year.Parse text
Check "by reference", text, "1990"
text = "n.d."
year.Parse text, "previous"
Check "nothing left", text, ""
text = "[1991]"
year.Parse (text)
Check "by value", text, "[1991]"
Check "parsed", year.toString(False, False), "[1991]"
number = 1992
year.Parse number
Check "a number stays one", number, 1992
text = Null
year.Parse text
Check "Null stays Null", VarType(text), vbNull
year.Parse Empty
year.Parse Nothing
Check "Nothing is no text", year.formatStr(Nothing), ""

Check "arguments left out", year.toString(, True), ""
year.Year = 1993
Check "property", year.Year, "1993"
Check "a method without parentheses", year.toString, "1993"
Check "type name", TypeName(year), "_OutputTemplateYear"
Check "boolean", VarType(year.Supports(0)), vbBoolean
Check "long", VarType(year.yearType), vbLong
Check "Nothing of an unknown code", main.build(18, formatted) Is Nothing, True
Check "a proxy", TypeName(main.buildSubformProxy), "_SubFormProxy"

year.ToFormattedString formatted
Check "sink", formatted.Text, "1993"
Set formatted.Element = year
year.ToFormattedString formatted
Check "a sink that parses", formatted.Text & " " & year.Year, "19931993 1999"
Set formatted.Element = main.build(6, formatted)
main.build(6, formatted).ToFormattedString formatted
year.ToFormattedString Nothing
year.ToFormattedString Null
year.ToFormattedString New Deaf
year.ToFormattedString
Check "after all that", year.formatStr("1994"), "1994"

' The slots of a date-time in an array of the script.
Dim dateTime, items(3), fragments(2), dynamic
Set dateTime = main.build(17, formatted)
dateTime.Parse "May 5, 2011, 9:15am EST"
dateTime.value(2) = "PST"
Check "slots", dateTime.ToFormattedStringImpl(False, items, fragments, False), False
Check "items", items(0) & "|" & items(1) & "|" & items(2) & "|" & items(3), "May 5, 2011|9:15 a.m.|PST|"
dynamic = Array("", "", "")
dateTime.ToFormattedStringImpl False, dynamic, Nothing, False
Check "a dynamic array", dynamic(0) & "|" & dynamic(1) & "|" & dynamic(2), "May 5, 2011|9:15 a.m.|PST"
dateTime.ToFormattedStringImpl False, text, number, False
Check "no array", VarType(text) & "," & number, vbNull & ",1992"

' A list as an array, a property with and without an index.
Dim author, list
Set author = main.build(0, formatted)
author.authors = Array("Smith, John", "Lee, Ann, Jr.")
list = author.authors
Check "authors", UBound(list) & "|" & list(0) & "|" & list(1), "1|Smith, John|Lee, Ann, Jr."
author.Anthologies = Array(True, False, False)
author.Anthologies(2) = True
list = author.Anthologies
Check "roles", list(0) & list(1) & list(2) & author.Anthologies(2), "TrueFalseTrueTrue"
author.authors = 5
Check "no list", UBound(author.authors) & "", "1"

' A Sub takes exactly what it declares: an author's separators come with a font, all else without one.
Dim narrow, publisher
For Each narrow In Array(New Sink, New OneArgument)
    Set author = main.build(0, narrow)
    author.Reset False, True, "(Ed.)", "&", False, True, True, True, True, 8, 6, 3, 6, 1, True, True, True, False, " "
    author.Parse "Kuhn, Thomas, and Popper, Karl"
    author.ToFormattedString narrow
    Set publisher = main.build(5, narrow)
    publisher.Parse "Vintage-Knopf; London: Random"
    publisher.ToFormattedString narrow
    Check TypeName(narrow), narrow.Text, "Kuhn, Thomas, & Popper, KarlVintage-Knopf; London: Random"
Next

WScript.Echo "done"
