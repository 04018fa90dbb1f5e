' The smallest client: the years of two references in MLA and in APA style.
'     cscript years.vbs
Option Explicit

' The formatted text to which the element writes. The library calls members by these exact names.
Class Sink
    Public Text

    Public Sub Add(newText, font)
        Text = Text & newText
    End Sub
End Class

Dim main, formatted, element
Set main = CreateObject("QuorvelTemplate.Main2")
Set formatted = New Sink
Set element = main.build(6, formatted)    ' 6 is the year

Sub Show(style, ByVal typed)
    Dim rest
    formatted.Text = ""
    rest = typed    ' Parse takes out of its variable what it has understood
    element.Parse rest
    element.ToFormattedString formatted, False, False
    WScript.Echo style & "  " & typed & " -> " & formatted.Text & " (type " & element.yearType & ")"
End Sub

' Forthcoming, in press, guessed years, the word for circa, supplied years, no date, en dash.
element.Reset True, False, True, "c.", True, "n.d.", False
Show "MLA", "[1990?]"
Show "MLA", "In press"

element.Reset False, True, False, "ca.", True, "n.d.", True
Show "APA", "[ca. 1990]"
Show "APA", "In press"

' An uncaught error ends a script without a word: this line says that all went well.
WScript.Echo "done"
