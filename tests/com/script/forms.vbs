' A host in VBScript that shows a form, and what its language has of its own: Set and no Set, default members, For Each.
Option Explicit

Dim main, host, proxy, form, told
told = ""

Sub Check(what, actual, expected)
    If actual <> expected Then WScript.Echo "FAILED " & what & ": " & actual & ", not " & expected
End Sub

Class HostObject
    Public Sub SetFormPosition(theForm, subFormMoved)
        Set form = theForm
        theForm.Left = 1500
        theForm.Top = 3000
    End Sub
    Public Sub setParentWidgetsValue(text, secondary)
        told = told & "text(" & text & "," & secondary & ") "
    End Sub
    Public Sub ProcessSubformWorkCompleted(code)
        told = told & "completed(" & code & ") "
    End Sub
    Public Sub HideFormPostProcessing()
        told = told & "hidden "
    End Sub
    Public Sub TooltipShow(str)
    End Sub
    Public Sub TooltipHide()
    End Sub
    Public Sub ReturnFocus()
    End Sub
End Class

Class FormattedText
    Private mText
    Public Sub Add(text)
        mText = mText & text
    End Sub
    Public Sub Reset()
        mText = ""
    End Sub
    Public Function toString()
        toString = mText
    End Function
End Class

Set main = CreateObject("QuorvelTemplate.Main2")
Set host = New HostObject
Set proxy = main.buildSubformProxy()
proxy.Initialize host, 6000

Dim year, control, count, isNew
Set year = main.build(6, New FormattedText)
year.Reset True, True, True, "c.", True, "n.d.", True
isNew = proxy.ShowForm(6, "Quorvel", Nothing, Nothing, year, Nothing, "1990", "")
Check "new", isNew, False
Check "name", TypeName(form) <> "Nothing" And form.Name = "YearForm", True
Check "left", Round(form.Left / 100), 15
Check "text", form.Controls("Year").Text, "1990"
Check "default", form.Year, "1990"
form.Year = "1991"
Check "put default", form.Controls("Year").Text, "1991"
form.Controls("Year") = "1992"
Check "put through Controls", form.Year.Text, "1992"
form.OptionButton(1) = True
Check "option", form.toString(), "n.d."
form.Controls("OptionButton", 0).Value = True
Check "options exclude each other", form.OptionButton(1).Value, False
count = 0
For Each control In form.OptionButton
    Check "index", control.Index, count
    count = count + 1
Next
Check "all of the array", count, form.OptionButton.Count
count = 0
For Each control In form.Controls
    If control.Name = "OkButton" Then count = count + 1
Next
Check "For Each", count, 1
Check "Nothing", form.Controls("Nowhere") Is Nothing, True
Check "OK", form.CommandButton(0).Caption, "OK"
told = ""
form.OkButton.Click
Check "told", told, "text(1992,) completed(1) "
WScript.Echo "done"
