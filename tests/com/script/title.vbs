' The title from VBScript: what its members take and give beside one text, and the steps of reading.
Option Explicit

Class Sink
    Public Text

    Public Sub Add(newText, font)
        Text = Text & newText & "/" & font & "|"
    End Sub
End Class

Sub Check(what, actual, expected)
    If VarType(actual) <> VarType(expected) Then
        WScript.Echo "FAILED " & what & ": " & TypeName(actual) & ", not " & TypeName(expected)
    ElseIf actual <> expected Then
        WScript.Echo "FAILED " & what & ": " & actual & ", not " & expected
    End If
End Sub

Dim main, title, formatted, text
Set main = CreateObject("QuorvelTemplate.Main2")
Set formatted = New Sink
Set title = main.build(1, formatted)
title.Reset 1, Nothing, True, True, "works", True, "parts", True, ""

Check "InHeadingCapitalization", title.InHeadingCapitalization("The wealth of nations"), "The Wealth of Nations"
Check "headingCapitalization", title.headingCapitalization("le rouge et le noir"), "Le Rouge et le Noir"
Check "formatRuleImpl heading", title.formatRuleImpl("the wealth of nations", True, True), "The Wealth of Nations"
Check "formatRuleImpl sentence", title.formatRuleImpl("Wealth of Nations", False, False), "wealth of nations"
Check "heading", title.IsInHeadingCapitalization("The Wealth of Nations"), True
Check "internal rules", title.capitalizeAccordingToInternalRules("The Wealth of Nations", True), "The wealth of nations"
Check "clone", title.CloneForHeadingCapitalization().formatRule("The wealth of nations"), "The Wealth of Nations"

Check "shouldBeCapitalized", title.shouldBeCapitalized("whale"), False
Check "in any style", title.shouldBeCapitalized("whale", True), True
Check "isOldTitle", title.isOldTitle("The newe worlde"), True
Check "isForeignTitle", title.isForeignTitle("Szkola"), True

title.UnItalicizeSpecies "The E. coli of HMS Beagle", formatted
Check "species", formatted.Text, "The /1|E. coli/0| of HMS Beagle/1|"
formatted.Text = ""
title.UnItalicizeShipNames "The E. coli of HMS Beagle", formatted
Check "ships", formatted.Text, "The E. coli of /1|HMS Beagle/0|"
formatted.Text = ""
title.UnItalicizeSpeciesAndNamesOfShips "The E. coli of HMS Beagle", formatted
Check "both", formatted.Text, "The /1|E. coli/0| of /1|HMS Beagle/0|"
title.UnItalicizeSpecies "E. coli", Nothing

text = "Le deuxieme sexe [The second sex]"
title.parseAndRemoveTranslation text
Check "rest", text, "Le deuxieme sexe"
Check "translation", title.value(2), "The second sex"
text = "Preface to Middlemarch, by George Eliot"
title.parseAndRemovePrematter text
Check "work", text, "Middlemarch, by George Eliot"
Check "prematter", title.isPrematter(title.TitleType), True
Check "prematterHasTitle", title.prematterHasTitle, False

WScript.Echo "done"
