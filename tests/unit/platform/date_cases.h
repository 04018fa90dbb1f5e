#pragma once

#include <chrono>

#include "core/dates.h"

/// What every implementation of the dates port has to read and write. The answers are those of OLE
/// Automation. Left out is what differs between versions of Windows and Wine: years of two digits from
/// 30 to 49, a day and a two-digit year that could change places ("5 May 10"), and the zeros before a
/// year below 1000.
namespace quorvel::tests {

inline constexpr TextView kNone = u"no date";

struct DateCase {
    TextView text;
    /// "yyyy-mm-dd", with " hh:mm:ss" when the text names a time; "now" is the current year.
    TextView date;
};

inline constexpr DateCase kDateCases[] = {
    // The forms of a date in a reference.
    {u"May 5, 1990", u"1990-05-05"},
    {u"5 May 1990", u"1990-05-05"},
    {u"September 1, 2011", u"2011-09-01"},
    {u"Sep 1, 2011", u"2011-09-01"},
    {u"Monday, May 7, 1990", u"1990-05-07"},
    {u"Mon May 7 1990", u"1990-05-07"},
    {u"May 7, 1990, Monday", u"1990-05-07"},
    {u"June 2010", u"2010-06-01"},
    {u"June, 2010", u"2010-06-01"},
    {u"2010 June", u"2010-06-01"},
    {u"1990 May 5", u"1990-05-05"},
    {u"1990 5 May", u"1990-05-05"},
    {u"March 3", u"now-03-03"},
    {u"3 March", u"now-03-03"},
    {u"December 31", u"now-12-31"},

    // Numbers alone: month, day, year where the calendar allows.
    {u"12/5/2010", u"2010-12-05"},
    {u"12-5-2010", u"2010-12-05"},
    {u"12 5 2010", u"2010-12-05"},
    {u"25/12/1990", u"1990-12-25"},
    {u"12/25/1990", u"1990-12-25"},
    {u"2010-05-12", u"2010-05-12"},
    {u"2010/5/12", u"2010-05-12"},
    {u"2010-13-12", u"2010-12-13"},
    {u"1/2/3", u"2003-01-02"},
    {u"13/5/28", u"2013-05-28"},
    {u"2010-05", u"2010-05-01"},
    {u"05-2010", u"2010-05-01"},
    {u"5/12", u"now-05-12"},
    {u"13/12", u"now-12-13"},
    {u"12/13", u"now-12-13"},

    // The first of January of a year, as a year is tested.
    {u"1 1990", u"1990-01-01"},
    {u"1 90", u"1990-01-01"},
    {u"1 50", u"1950-01-01"},
    {u"1 99", u"1999-01-01"},
    {u"1 0", u"2000-01-01"},
    {u"1 00", u"2000-01-01"},
    {u"1 100", u"0100-01-01"},
    {u"1 999", u"0999-01-01"},
    {u"1 9999", u"9999-01-01"},
    {u"1 12", u"now-01-12"},
    {u"1 31", u"now-01-31"},
    {u"1 1990-1995", kNone},
    {u"1 10000", kNone},
    {u"1 12000", kNone},
    {u"1 67526", kNone},
    {u"1 99999999999999999999", kNone},
    {u"1 1990a", kNone},
    {u"1", kNone},
    {u"1990", kNone},
    {u"1990a", kNone},
    {u"1990-1995", kNone},
    {u"0 1990", kNone},
    {u"13 1990", kNone},
    // 7 * 256 + 1: a month that is kept in a byte would be January.
    {u"1793 5 5", u"1793-05-05"},
    {u"13 1793", kNone},

    // Years of two digits.
    {u"May 5, 90", u"1990-05-05"},
    {u"May 5, 50", u"1950-05-05"},
    {u"May 5, 29", u"2029-05-05"},
    {u"May 5, 0", u"2000-05-05"},
    {u"May 5, 09", u"2009-05-05"},
    {u"May 5, 0099", u"1999-05-05"},
    {u"05-May-90", u"1990-05-05"},
    {u"12/5/90", u"1990-12-05"},

    // Days of the calendar.
    {u"February 29, 2012", u"2012-02-29"},
    {u"February 29, 2011", kNone},
    {u"February 29, 2000", u"2000-02-29"},
    {u"February 29, 1900", kNone},
    {u"February 30, 2010", kNone},
    {u"April 31, 2010", kNone},
    {u"May 31, 2010", u"2010-05-31"},
    {u"May 32, 2010", kNone},
    {u"2010-00-12", kNone},
    {u"31 31 31", kNone},
    {u"13/13", kNone},
    {u"January 1, 100", u"0100-01-01"},
    {u"December 30, 1899", u"1899-12-30"},
    {u"December 29, 1899", u"1899-12-29"},
    {u"December 31, 9999", u"9999-12-31"},

    // Letter case, blanks and marks.
    {u"JUNE 2010", u"2010-06-01"},
    {u"jUn 2010", u"2010-06-01"},
    {u"  May   5,  1990  ", u"1990-05-05"},
    {u"5\u00A0May\u20091990", u"1990-05-05"},
    {u"5\tMay\r\n1990", u"1990-05-05"},
    {u"5-May-1990", u"1990-05-05"},
    {u"5 May-1990", u"1990-05-05"},
    {u"May5,1990", u"1990-05-05"},
    {u"5May1990", u"1990-05-05"},
    {u"May, , 5", u"now-05-05"},
    {u", May 5, 1990", u"1990-05-05"},
    {u"May 5, 1990,", kNone},
    {u"May 5, 1990.", kNone},
    {u"May 5, 1990-", kNone},
    {u"/May 5, 1990", kNone},
    {u"May 5--1990", u"1990-05-05"},
    {u"5/5//1990", kNone},
    {u"12.5.1990", kNone},
    {u"(May 5, 1990)", kNone},
    {u"[May 5, 1990]", kNone},
    {u"May 5; 1990", kNone},
    {u"May\u20135, 1990", kNone},
    {u"May 5\u200B, 1990", kNone},

    // Names and words that are none of a date.
    {u"", kNone},
    {u" ", kNone},
    {u",", kNone},
    {u"May", kNone},
    {u"March", kNone},
    {u"Monday", kNone},
    {u"Monday 5", kNone},
    {u"summer 2010", kNone},
    {u"n.d.", kNone},
    {u"in press", kNone},
    {u"c. 1990", kNone},
    {u"Sept 1, 2011", kNone},
    {u"Sept. 2010", kNone},
    {u"Jan. 5, 1990", kNone},
    {u"5. May 1990", kNone},
    {u"May 5th, 1990", kNone},
    {u"the 5 May 1990", kNone},
    {u"Mayor 5, 1990", kNone},
    {u"Juin 2010", kNone},
    {u"Tues May 8 1990", kNone},
    {u"Apr\u0130l 5, 1990", kNone},
    {u"Augu\u017Ft 5, 1990", kNone},
    {u"M\u0430y 5, 1990", kNone},
    {u"\u0665 May 1990", kNone},
    {u"\uFF15 May 1990", kNone},
    {u"May 1990 5", kNone},
    {u"1 1 1 1", kNone},
    {u"May 5\u2013June 6, 1990", kNone},
    {u"May 5-June 6, 1990", kNone},
    // A month's name counts as its number where a day is wanted.
    {u"May-June 2010", u"2010-05-06"},

    // Times of day.
    {u"10:30", u"1899-12-30 10:30:00"},
    {u"10.30", u"1899-12-30 10:30:00"},
    {u"0:00:01", u"1899-12-30 00:00:01"},
    {u"10:23 am", u"1899-12-30 10:23:00"},
    {u"10:30pm", u"1899-12-30 22:30:00"},
    {u"12:57:58 pm", u"1899-12-30 12:57:58"},
    {u"12:57:58 AM", u"1899-12-30 00:57:58"},
    {u"13 pm", u"1899-12-30 13:00:00"},
    {u"5 p", u"1899-12-30 17:00:00"},
    {u"Monday 5:10", u"1899-12-30 05:10:00"},
    {u"May 5, 1990 10:30", u"1990-05-05 10:30:00"},
    {u"May 5, 1990, 10:30:15 pm", u"1990-05-05 22:30:15"},
    {u"10:30 5 May 1990", u"1990-05-05 10:30:00"},
    {u"9 am, May 5, 1850", u"1850-05-05 09:00:00"},
    {u"June 2010 10:30", u"2010-06-01 10:30:00"},
    {u"10:23 a.m.", kNone},
    {u"10:23 p.m.", kNone},
    {u"10;30", kNone},
    {u"10:60", kNone},
    {u"10:30:60", kNone},
    {u"24:00", kNone},
    {u"10:", kNone},
    {u":10", kNone},
    {u"10:20:30:40", kNone},
    {u"10:30 11:30", kNone},
    {u"10:30 am pm", kNone},
    {u"am", kNone},
    {u"pm 10:30", kNone},
    {u"10:30 May", kNone},
    {u"May 10:30 5", kNone},
    {u"May 5 10:30 1990", kNone},
    {u"10:30 1990", kNone},
    {u"May 5, 1990 10", kNone},
    {u"May 5, 1990 25:10", kNone},
};

struct FormatCase {
    std::chrono::sys_days day;
    /// The part of the day that has passed; patterns take no notice of it.
    double time;
    TextView pattern;
    TextView text;
};

inline constexpr std::chrono::sys_days kFirstOfJune = std::chrono::year{2010} / 6 / 1;
inline constexpr std::chrono::sys_days kLastOfYear = std::chrono::year{1999} / 12 / 31;
inline constexpr std::chrono::sys_days kMidMay = std::chrono::year{1850} / 5 / 15;

inline constexpr FormatCase kFormatCases[] = {
    {kFirstOfJune, 0, u"mmmm d, yyyy", u"June 1, 2010"},
    {kFirstOfJune, 0, u"mmmm, yyyy", u"June, 2010"},
    {kFirstOfJune, 0, u"mmmm yyyy", u"June 2010"},
    {kFirstOfJune, 0, u"mmm yyyy", u"Jun 2010"},
    {kFirstOfJune, 0, u"d mmm yyyy", u"1 Jun 2010"},
    {kFirstOfJune, 0, u"dddd, mmmm d, yyyy", u"Tuesday, June 1, 2010"},
    {kFirstOfJune, 0, u"ddd dd mmm", u"Tue 01 Jun"},
    {kFirstOfJune, 0, u"yyyy, mmmm d", u"2010, June 1"},
    {kFirstOfJune, 0, u"yyyy", u"2010"},
    {kFirstOfJune, 0, u"m/d/yy", u"6/1/10"},
    {kFirstOfJune, 0, u"mm/dd/yyyy", u"06/01/2010"},
    {kFirstOfJune, 0, u"yyyy-mm-dd", u"2010-06-01"},
    {kFirstOfJune, 0, u"yyyymmdd", u"20100601"},
    {kFirstOfJune, 0, u"d. mmmm yyyy", u"1. June 2010"},
    {kFirstOfJune, 0, u"mmm. d", u"Jun. 1"},
    {kFirstOfJune, 0, u"MMMM D, YYYY", u"June 1, 2010"},
    {kFirstOfJune, 0, u"Mmmm d, Yyyy", u"June 1, 2010"},
    {kFirstOfJune, 0, u" yyyy ", u" 2010 "},
    {kFirstOfJune, 0, u"(yyyy)", u"(2010)"},
    {kFirstOfJune, 0, u"[yyyy]", u"[2010]"},
    {kFirstOfJune, 0, u"mmmm\u2013yyyy", u"June\u20132010"},
    {kFirstOfJune, 0, u", ", u", "},
    {kFirstOfJune, 0, u" ", u" "},
    {kFirstOfJune, 0, u"", u"6/1/2010"},
    {kLastOfYear, 0, u"yy", u"99"},
    {kLastOfYear, 0, u"d dd ddd dddd", u"31 31 Fri Friday"},
    {kLastOfYear, 0, u"m mm mmm mmmm", u"12 12 Dec December"},
    {kLastOfYear, 0.999, u"mmmm d, yyyy", u"December 31, 1999"},
    {kMidMay, 0, u"dddd, mmmm d, yyyy", u"Wednesday, May 15, 1850"},
    {kMidMay, 0.75, u"dddd, mmmm d, yyyy", u"Wednesday, May 15, 1850"},
};

}  // namespace quorvel::tests
