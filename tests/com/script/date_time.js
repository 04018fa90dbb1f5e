// Date and time from JScript: in the four styles, with a sink of its own and with arrays for its slots.
var main = new ActiveXObject("QuorvelTemplate.Main2");

function check(what, actual, expected) {
    if (actual !== expected) WScript.Echo("FAILED " + what + ": " + escape(actual) + ", not " + escape(expected));
}

function Sink(text) {
    this.text = text;
    this.Add = function (more) { this.text += more; };
    this.Clone = function () { return new Sink(this.text); };
    this.BuildNewFormattedString = function () { return new Sink(""); };
    this.Reset = function () { this.text = ""; };
    this.toString = function () { return this.text; };
    this.toRTFString = function () { return "{\\rtf1 " + this.text + "}"; };
}

// In the last style the time stands in parentheses.
var styles = [["MLA", "d mmmm yyyy", false, true], ["APA", "yyyy, mmmm d", false, false],
              ["Turabian", "mmmm d, yyyy", false, false], ["AMA", "mmmm d, yyyy", false, false],
              ["parentheses", "", true, false]];

// Text, its parts, and the output in each style.
var rows = [
    ["September 1, 2011, 10:23 a.m. PDT", "September 1, 2011", "10:23 a.m.", "PDT", "1 Sept. 2011, 10:23 a.m. PDT",
     "2011, September 1, 10:23 a.m. PDT", "September 1, 2011, 10:23 a.m. PDT", "September 1, 2011, 10:23 a.m. PDT",
     "September 1, 2011 (10:23 a.m. PDT)"],
    ["12 May 2010.", "12 May 2010", "", "", "12 May 2010", "2010, May 12", "May 12, 2010", "May 12, 2010", "May 12, 2010"],
    ["10:23pm", "", "10:23pm", "", "10:23 p.m.", "10:23 p.m.", "10:23 p.m.", "10:23 p.m.", "(10:23 p.m.)"],
    ["June 2010", "June 2010", "", "", "June 2010", "2010, June", "June 2010", "June 2010", "June 2010"],
    ["May-June 2010", "May-June 2010", "", "", "May-June 2010", "2010, May-June", "May-June 2010", "May-June 2010",
     "May-June 2010"],
    ["Spring 2011", "Spring 2011", "", "", "Spring 2011", "2011, Spring", "Spring 2011", "Spring 2011", "Spring 2011"],
    ["", "", "", "", "", "", "", "", ""]
];

for (var s = 0; s < styles.length; ++s) {
    var sink = new Sink(""), dateTime = main.build(17, sink);
    dateTime.Reset(styles[s][1], styles[s][2], styles[s][3]);
    for (var r = 0; r < rows.length; ++r) {
        var row = rows[r], what = styles[s][0] + " " + row[0];
        dateTime.Parse(row[0]);
        for (var part = 0; part < 3; ++part) check(what + " " + part, dateTime.value(part), row[1 + part]);
        sink.text = "";
        dateTime.ToFormattedString(sink, true);
        check(what + " to the sink", sink.text, row[4 + s]);
        check(what + " as text", dateTime.toString(), row[4 + s]);
        check(what + " as RTF", dateTime.toString(false, false, true), "{\\rtf1 " + row[4 + s] + "}");
        check(what + " of a clone", dateTime.Clone().toString(), row[4 + s]);
        check(what + " at once", dateTime.formatStr(row[0]), row[4 + s]);
    }
}

dateTime.Parse("May 5, 2011", "9:15am EST");
check("a time kept apart", dateTime.value(0) + "|" + dateTime.value(1) + "|" + dateTime.value(2), "May 5, 2011|9:15am|EST");
check("no such part", dateTime.value(3), "");
dateTime.value(1) = "noon";

// The slots in arrays of the script, by their places.
var items = ["", "", "", "mine"];
check("slots", dateTime.ToFormattedStringImpl(false, items, [], false), false);
check("items", items.join("|"), "May 5, 2011|noon|EST|mine");
check("too few slots", dateTime.ToFormattedStringImpl(false, [""], [], false), false);

WScript.Echo("done");
