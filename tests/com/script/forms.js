// A host in JScript that shows forms: it gives the objects that the form asks, reads and writes the controls by name,
// and gets the text when OK is clicked.
var main = new ActiveXObject("QuorvelTemplate.Main2");

function check(what, actual, expected) {
    if (actual !== expected) WScript.Echo("FAILED " + what + ": " + escape(actual) + ", not " + escape(expected));
}
function FormattedText() {
    this.text = "";
    this.Add = function (text) { this.text += text; };
    this.Reset = function () { this.text = ""; };
    this.Clone = this.BuildNewFormattedString = function () { return new FormattedText(); };
    this.toString = this.toRTFString = function () { return this.text; };
    this.IsEmpty = function () { return this.text === ""; };
    this.addFormattedString = function (other) { this.text += other.toString(); };
    this.removeQuoteFromLastPhrase = function () { return 0; };
}

var form = null;
var told = "";
var host = {
    SetFormPosition: function (theForm, subFormMoved) {
        form = theForm;
        theForm.Move(1500, 3000);
    },
    setParentWidgetsValue: function (text, secondary) { told += "text(" + text + "," + secondary + ") "; },
    ProcessSubformWorkCompleted: function (code) { told += "completed(" + code + ") "; },
    HideFormPostProcessing: function () { told += "hidden "; },
    TooltipShow: function () {},
    TooltipHide: function () {},
    ReturnFocus: function () {}
};
function takenTold() {
    var line = told;
    told = "";
    return line;
}

var proxy = main.buildSubformProxy();
proxy.Initialize(host, 6000);

var year = main.build(6, new FormattedText());
year.Reset(true, true, true, "c.", true, "n.d.", true);
check("a form is new", proxy.ShowForm(6, "Quorvel", null, null, year, null, "[1990?]", ""), false);
check("name", form.Name, "YearForm");
check("caption", form.Caption, "Year - Quorvel");
check("visible", form.Visible, true);
check("window", typeof form.hwnd + typeof form.Year.hwnd, "numbernumber");
check("left", Math.round(form.Left / 100), 15);
check("text", form.Controls("Year").Text, "1990");
check("member", form.year.text, "1990");
check("option", form.OptionButton(2).Value, true);
check("default value", "" + form.Year, "1990");
check("no such control", form.Controls("Nowhere"), null);
form.Controls("Year").Text = "1995";
check("preview of a guess", form.toString(), "[1995?]");
form.Controls("OptionButton", 0).Click();
check("plain", form.toString(), "1995");
var names = "";
for (var all = new Enumerator(form.Controls); !all.atEnd(); all.moveNext()) names += all.item().Name + " ";
check("enumeration", names.indexOf("YearLabel Year ") === 0 && names.split(" ").length - 1 === form.Controls.Count, true);
check("used again", proxy.ShowForm(6, "Quorvel", null, null, year, null, "2001", ""), true);
check("filled again", form.Year.Text, "2001");
takenTold();
var box = form.Controls("Year");
form.OkButton.Click();
check("OK", takenTold(), "text(2001,) completed(1) ");
check("gone", box.Text, "");

var author = main.build(0, new FormattedText());
author.Reset(true, true, "(Ed.),(Comp.),(Trans.)", "&", false, true, true, true, true, 8, 6, 3, 6, 1, true, true, true,
             false, " ", true, true, false, false);
proxy.ShowForm(0, "Quorvel", null, null, author, null, "Smith, John, & Lee, Ann", "");
check("authors", form.authors(1).Text + ";" + form.SecondaryAuthors(2).Text, "Smith, John;Lee, Ann");
check("rows", form.authors.Count, 6);
form.authors(3).Text = "Doe, Jane";
form.showDiscussant = true;
check("shown", form.Discussant.Visible, true);
check("another class", proxy.ShowForm(6, "Quorvel", null, null, year, null, "1990", ""), false);
check("the author form is gone", takenTold(), "completed(1) hidden ");
form.Unload();
check("closed", takenTold(), "completed(1) ");
WScript.Echo("done");
