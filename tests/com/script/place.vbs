' The place from VBScript: each variant in the four styles, the states, and what is odd about it.
Option Explicit

Class Sink
    Public Text

    Public Sub Add(newText, font)
        Text = Text & newText & "/" & font
    End Sub
End Class

Sub Check(what, actual, expected)
    If VarType(actual) <> VarType(expected) Then
        WScript.Echo "FAILED " & what & ": " & TypeName(actual) & ", not " & TypeName(expected)
    ElseIf actual <> expected Then
        WScript.Echo "FAILED " & what & ": " & actual & ", not " & expected
    End If
End Sub

Dim main, names, options, rows, row, i, s, place, formatted, rest
Set main = CreateObject("QuorvelTemplate.Main2")
names = Array("MLA", "APA", "Turabian", "AMA")
options = Array(Array(True, True, True, False, True), Array(False, False, False, False, False), _
                Array(True, True, True, False, False), Array(False, False, False, False, True))

Sub ResetTo(element, o)
    element.Reset o(0), o(1), o(2), o(3), o(4)
End Sub

' Text, placeType, Place, what is left, and the output in each style beside the University of Nebraska Press.
rows = Array( _
    Array("Paris", 0, "Paris", "Paris", "Paris", "Paris", "Paris"), _
    Array(" Paris. ", 0, "Paris", "Paris", "Paris", "Paris", "Paris"), _
    Array("n.p.", 1, "", "n.p.", "", "n.p.", ""), _
    Array("n.p", 0, "n.p", "n.p", "n.p", "n.p", "n.p"), _
    Array("[Paris?]", 2, "Paris", "[Paris?]", "Paris", "[Paris?]", "Paris"), _
    Array("[Paris]", 3, "Paris", "[Paris]", "Paris", "[Paris]", "Paris"), _
    Array("[Paris].", 3, "Paris", "[Paris]", "Paris", "[Paris]", "Paris"), _
    Array("Lincoln, Nebraska", 0, "Lincoln, Nebraska", "Lincoln, Nebraska", "Lincoln", "Lincoln", "Lincoln, Nebraska"), _
    Array("[Lincoln, Nebraska?]", 2, "Lincoln, Nebraska", "[Lincoln, Nebraska?]", "Lincoln", "[Lincoln?]", "Lincoln, Nebraska"), _
    Array("Lincoln, NE", 0, "Lincoln, NE", "Lincoln, NE", "Lincoln, NE", "Lincoln, NE", "Lincoln, NE"), _
    Array("Washington, D.C.", 0, "Washington, D.C", "Washington, D.C", "Washington, D.C", "Washington, D.C", "Washington, D.C"), _
    Array("", 0, "", "", "", "", ""))

For s = 0 To 3
    Set formatted = New Sink
    Set place = main.build(15, formatted)
    ResetTo place, options(s)
    For Each row In rows
        rest = row(0)
        place.Parse rest, "ignored"
        Check names(s) & " " & row(0) & " left", rest, row(2)
        Check names(s) & " " & row(0) & " Place", place.Place, row(2)
        Check names(s) & " " & row(0) & " placeType", place.placeType, CLng(row(1))
        Check names(s) & " " & row(0), place.toString(False, False, "University of Nebraska Press"), row(3 + s)
        Check names(s) & " " & row(0) & " at once", place.formatStr(row(0), "University of Nebraska Press"), row(3 + s)
        formatted.Text = ""
        place.ToFormattedString formatted
        Check names(s) & " " & row(0) & " to the sink", formatted.Text, place.toString() & "/0"
    Next
    For i = 0 To 3
        Check names(s) & " Supports " & i, place.Supports(i), CBool(i = 0 Or options(s)(0))
    Next
    Check "Supports 4", place.Supports(4), False
Next

' Every state is written out, and only what is in the table.
Dim abbreviations, states
place.Reset False, False, False, True, False
abbreviations = place.DefaultAbbreviations
states = place.States
Check "first state", LBound(states) & abbreviations(0) & states(0), "0ALAlabama"
Check "last state", UBound(abbreviations) & abbreviations(55) & states(55), "55WYWyoming"
For i = 0 To 55
    Check abbreviations(i), place.formatStr("X,  " & abbreviations(i)), "X, " & states(i)
Next
For Each row In Array(Array("Boston, Mass", "Boston, Mass"), Array("Boston, ma", "Boston, ma"), Array("A, XX", "A, XX"), _
                      Array("Denver, CO, USA", "Denver, Colorodo, USA"), Array("Boston,", "Boston,"))
    Check row(0), place.formatStr(row(0)), row(1)
Next
Check "a name that holds the state", place.formatStr("Lincoln, NE", "University of NE Press"), "Lincoln, Nebraska"

' A clone has the options and no place.
place.Parse "Denver, CO"
Check "clone", place.Clone.toString(), ""
Check "clone's options", place.Clone.formatStr("Denver, CO"), "Denver, Colorodo"
place.Place = "kept"
place.placeType = 3
For Each row In Array(Array("", False), Array("n.p.", True), Array("1990", True), Array("[1990?]", True), Array("Paris", False))
    Check "isPlace " & row(0), place.isPlace(row(0)), row(1)
Next
Check "isPlace leaves the element", place.Place & place.placeType, "kept3"

WScript.Echo "done"
