// The smallest client: the years of two references in MLA and in APA style.
//     cscript years.js

// The formatted text to which the element writes. The library calls members by these exact names.
function Sink() {
    this.text = "";
    this.Add = function (text, font) { this.text += text; };
}

var main = new ActiveXObject("QuorvelTemplate.Main2");
var sink = new Sink();
var year = main.build(6, sink);    // 6 is the year

function show(style, text) {
    sink.text = "";
    year.Parse(text);
    year.ToFormattedString(sink, false, false);
    WScript.Echo(style + "  " + text + " -> " + sink.text + " (as text: " + year.toString() + ")");
}

// Forthcoming, in press, guessed years, the word for circa, supplied years, no date, en dash.
year.Reset(true, false, true, "c.", true, "n.d.", false);
show("MLA", "[1990?]");
show("MLA", "In press");

year.Reset(false, true, false, "ca.", true, "n.d.", true);
show("APA", "[ca. 1990]");
show("APA", "In press");

// An uncaught error ends a script without a word: this line says that all went well.
WScript.Echo("done");
