// How JScript calls: leaving arguments out, null and undefined, members in any letter case, arrays, sinks
// that throw or call back.
var main = new ActiveXObject("QuorvelTemplate.Main2");

function check(what, actual, expected) {
    if (actual !== expected) WScript.Echo("FAILED " + what + ": " + escape(actual) + ", not " + escape(expected));
}

var sink = { text: "", Add: function (text) { this.text += text; } };
var year = main.build("6", sink);
year.RESET(true, "False", -1, "c.", 1, null, undefined);
check("letter case and conversion", year.FORMATSTR("[1990?]"), "[1990?]");
check("null is an empty text", year.formatStr("n.d."), "");
year.Reset(true);
check("arguments left out", year.formatStr("[c.1990]"), "[ 1990]");
check("a number for a text", year.formatStr(1990), "1990");
check("null", year.formatStr(null), "");
check("undefined", year.formatStr(undefined), "");
check("an object for a text is its default value", year.formatStr(sink), "[object Object]");
check("too many", year.formatStr("1991", 2, 3, 4), "1991");
check("a property that is a method", year.Year(), "1991");
year.Year = 1992;
check("a number for a property", year.Year, "1992");
year.yearType = "2";
check("a text for a number", year.yearType, 2);
year.yearType = "two";
check("no number", year.yearType, 2);
year.ToFormattedString(sink);
check("sink", sink.text, "[1992?]");

var codes = [-1, 18, 19, 20, 70000, "year", 18.4];
for (var i = 0; i < codes.length; ++i) check("build " + codes[i], main.build(codes[i], sink), null);
check("buildSubformProxy", typeof main.buildSubformProxy(), "object");
// A method is called, not read: nothing runs.
year.Year = "1992";
var read = "refused";
try {
    read = year.Parse;
} catch (error) {
}
check("a method is no property", read + year.Year, "refused1992");
try {
    year.noSuchMember();
    WScript.Echo("FAILED a member that is not there was called");
} catch (error) {
    check("no such member", error.number & 0xFFFF, 438);
}

// Arrays come as those of Visual Basic.
var states = new VBArray(main.build(15, null).States);
check("States", states.lbound() + " " + states.ubound() + " " + states.getItem(7), "0 55 Colorodo");

// Members with arguments of their own, on other classes.
var place = main.build(15, sink);
place.Reset(true, true, true, true, false);
check("place", place.formatStr("Lincoln, NE", "University of NE Press"), "Lincoln, Nebraska");
check("isPlace", place.isPlace("n.p.") + "," + place.isPlace("Paris") + "," + place.Supports(4), "true,false,false");
function FormattedText() {
    this.text = "";
    this.Add = function (text) { this.text += text; };
    this.Clone = this.BuildNewFormattedString = function () { return new FormattedText(); };
    this.Reset = function () { this.text = ""; };
    this.toString = function () { return this.text; };
    this.toRTFString = function () { return "{\\rtf1 " + this.text + "}"; };
}
var dateTime = main.build(17, new FormattedText());
dateTime.Reset("yyyy, mmmm d", true);
dateTime.Parse("May 5, 2011", "9:15am EST");
check("as RTF", dateTime.toString(false, false, true), "{\\rtf1 2011, May 5 (9:15 a.m. EST)}");
dateTime.value(1) = "noon";
check("a clone", dateTime.Clone().toString(), "2011, May 5 (noon EST)");
check("no such part", dateTime.value(3), "");

var author = main.build(9, sink);
author.authors = ["Smith, John", "Lee, Ann"];
check("authors", new VBArray(author.authors).toArray().join("|"), "Smith, John|Lee, Ann");
author.Anthologies(1) = true;
check("roles", new VBArray(author.Anthologies).toArray().join() + author.Anthologies(1), "false,true,falsetrue");
author.authors = [];
check("no authors", author.isEmptyArrayAuthor(), true);

// Whatever a sink does, the call comes back.
function callWith(add) {
    year.Parse("1990");
    year.ToFormattedString({ Add: add });
    return year.toString();
}
check("a sink that throws", callWith(function () { throw new Error(5, "mine"); }), "1990");
check("a sink with an error of its own", callWith(function () { return nothing.at.all; }), "1990");
check("a sink that parses", callWith(function () { year.Parse("[1991]"); }), "[1991]");
check("a sink that is a number", callWith(5), "1990");
var depth = 0;
check("a sink that writes again", callWith(function () {
    if (++depth < 20) year.ToFormattedString(this);
}), "1990");
check("depth", depth, 20);
year.ToFormattedString(null);
year.ToFormattedString({});
year.ToFormattedString("text");
check("after all that", year.formatStr("1993"), "1993");

// Flags as a script's arrays; what cannot be a flag leaves the options as they were.
var volumes = main.build(10, sink);
volumes.Reset([1, "True", false], [], false, true, "", false, false, false, false);
check("flags that are offered", volumes.IsSeriesSupported + " " + volumes.IsMultiVolSupported, "true false");
volumes.Reset(["odd"], [true], false, true, "", false, false, false, false);
check("flags that are none", volumes.IsSeriesSupported, true);
volumes.Volume = 7;
check("an array as argument", volumes.getVolume([0, 0, -1]) + volumes.getVolume([]) + volumes.getVolume(null), "7");

WScript.Echo("done");
