#pragma once

#include <chrono>

#include "core/dates.h"
#include "support/rows.h"

/// What every implementation of the dates port has to read and write. The answers are those of OLE
/// Automation. Left out is what differs between versions of Windows and Wine: years of two digits from
/// 30 to 49, a day and a two-digit year that could change places ("5 May 10"), and the zeros before a
/// year below 1000.
namespace quorvel::tests {

struct DateCase {
    TextView text;
    /// "yyyy-mm-dd", with " hh:mm:ss" when the text names a time; "now" is the current year.
    TextView date;
};

// The forms of a date in a reference; numbers alone, which are month, day, year where the calendar allows; the first of
// January of a year, as a year is tested (7 * 256 + 1 is 1793: a month that is kept in a byte would be January); years
// of two digits; the ends of the calendar; letter case, blanks and marks; a month's name that counts as its number
// where a day is wanted.
inline const auto kDateCases = rows<DateCase>(
    u"May 5, 1990 => 1990-05-05 || 5 May 1990 => 1990-05-05 || September 1, 2011 => 2011-09-01 || "
    u"Sep 1, 2011 => 2011-09-01 || Monday, May 7, 1990 => 1990-05-07 || Mon May 7 1990 => 1990-05-07 || "
    u"May 7, 1990, Monday => 1990-05-07 || June 2010 => 2010-06-01 || June, 2010 => 2010-06-01 || "
    u"2010 June => 2010-06-01 || 1990 May 5 => 1990-05-05 || 1990 5 May => 1990-05-05 || March 3 => now-03-03 || "
    u"3 March => now-03-03 || December 31 => now-12-31 || 12/5/2010 => 2010-12-05 || 12-5-2010 => 2010-12-05 || "
    u"12 5 2010 => 2010-12-05 || 25/12/1990 => 1990-12-25 || 12/25/1990 => 1990-12-25 || "
    u"2010-05-12 => 2010-05-12 || 2010/5/12 => 2010-05-12 || 2010-13-12 => 2010-12-13 || 1/2/3 => 2003-01-02 || "
    u"13/5/28 => 2013-05-28 || 2010-05 => 2010-05-01 || 05-2010 => 2010-05-01 || 5/12 => now-05-12 || "
    u"13/12 => now-12-13 || 12/13 => now-12-13 || 1 1990 => 1990-01-01 || 1 90 => 1990-01-01 || "
    u"1 50 => 1950-01-01 || 1 99 => 1999-01-01 || 1 0 => 2000-01-01 || 1 00 => 2000-01-01 || 1 100 => 0100-01-01 || "
    u"1 999 => 0999-01-01 || 1 9999 => 9999-01-01 || 1 12 => now-01-12 || 1 31 => now-01-31 || "
    u"1793 5 5 => 1793-05-05 || May 5, 90 => 1990-05-05 || May 5, 50 => 1950-05-05 || May 5, 29 => 2029-05-05 || "
    u"May 5, 0 => 2000-05-05 || May 5, 09 => 2009-05-05 || May 5, 0099 => 1999-05-05 || 05-May-90 => 1990-05-05 || "
    u"12/5/90 => 1990-12-05 || February 29, 2012 => 2012-02-29 || February 29, 2000 => 2000-02-29 || "
    u"May 31, 2010 => 2010-05-31 || January 1, 100 => 0100-01-01 || December 30, 1899 => 1899-12-30 || "
    u"December 29, 1899 => 1899-12-29 || December 31, 9999 => 9999-12-31 || JUNE 2010 => 2010-06-01 || "
    u"jUn 2010 => 2010-06-01 ||   May   5,  1990   => 1990-05-05 || 5\u00A0May\u20091990 => 1990-05-05 || "
    u"5\tMay\r\n1990 => 1990-05-05 || 5-May-1990 => 1990-05-05 || 5 May-1990 => 1990-05-05 || "
    u"May5,1990 => 1990-05-05 || 5May1990 => 1990-05-05 || May, , 5 => now-05-05 || , May 5, 1990 => 1990-05-05 || "
    u"May 5--1990 => 1990-05-05 || May-June 2010 => 2010-05-06");

// Times of day.
inline const auto kTimeCases = rows<DateCase>(
    u"10:30 => 1899-12-30 10:30:00 || 10.30 => 1899-12-30 10:30:00 || 0:00:01 => 1899-12-30 00:00:01 || "
    u"10:23 am => 1899-12-30 10:23:00 || 10:30pm => 1899-12-30 22:30:00 || 12:57:58 pm => 1899-12-30 12:57:58 || "
    u"12:57:58 AM => 1899-12-30 00:57:58 || 13 pm => 1899-12-30 13:00:00 || 5 p => 1899-12-30 17:00:00 || "
    u"Monday 5:10 => 1899-12-30 05:10:00 || May 5, 1990 10:30 => 1990-05-05 10:30:00 || "
    u"May 5, 1990, 10:30:15 pm => 1990-05-05 22:30:15 || 10:30 5 May 1990 => 1990-05-05 10:30:00 || "
    u"9 am, May 5, 1850 => 1850-05-05 09:00:00 || June 2010 10:30 => 2010-06-01 10:30:00");

// Years and numbers, days that no calendar has, marks, names and words that are none of a date, and times in places
// where no time is read.
inline const auto kNoDates = rows(
    u"1 1990-1995 || 1 10000 || 1 12000 || 1 67526 || 1 99999999999999999999 || 1 1990a || 1 || 1990 || 1990a || "
    u"1990-1995 || 0 1990 || 13 1990 || 13 1793 || February 29, 2011 || February 29, 1900 || February 30, 2010 || "
    u"April 31, 2010 || May 32, 2010 || 2010-00-12 || 31 31 31 || 13/13 || May 5, 1990, || May 5, 1990. || "
    u"May 5, 1990- || /May 5, 1990 || 5/5//1990 || 12.5.1990 || (May 5, 1990) || [May 5, 1990] || May 5; 1990 || "
    u"May\u20135, 1990 || May 5\u200B, 1990 ||  ||   || , || May || March || Monday || Monday 5 || summer 2010 || "
    u"n.d. || in press || c. 1990 || Sept 1, 2011 || Sept. 2010 || Jan. 5, 1990 || 5. May 1990 || May 5th, 1990 || "
    u"the 5 May 1990 || Mayor 5, 1990 || Juin 2010 || Tues May 8 1990 || Apr\u0130l 5, 1990 || "
    u"Augu\u017Ft 5, 1990 || M\u0430y 5, 1990 || \u0665 May 1990 || \uFF15 May 1990 || May 1990 5 || 1 1 1 1 || "
    u"May 5\u2013June 6, 1990 || May 5-June 6, 1990 || 10:23 a.m. || 10:23 p.m. || 10;30 || 10:60 || 10:30:60 || "
    u"24:00 || 10: || :10 || 10:20:30:40 || 10:30 11:30 || 10:30 am pm || am || pm 10:30 || 10:30 May || "
    u"May 10:30 5 || May 5 10:30 1990 || 10:30 1990 || May 5, 1990 10 || May 5, 1990 25:10");

struct FormatCase {
    std::chrono::sys_days day;
    TextView pattern;
    TextView text;
    /// The part of the day that has passed; patterns take no notice of it.
    double time = 0;
};

inline constexpr std::chrono::sys_days kFirstOfJune = std::chrono::year{2010} / 6 / 1;
inline constexpr std::chrono::sys_days kLastOfYear = std::chrono::year{1999} / 12 / 31;
inline constexpr std::chrono::sys_days kMidMay = std::chrono::year{1850} / 5 / 15;

inline constexpr FormatCase kFormatCases[] = {
    {kFirstOfJune, u"mmmm d, yyyy", u"June 1, 2010"},
    {kFirstOfJune, u"mmmm, yyyy", u"June, 2010"},
    {kFirstOfJune, u"mmmm yyyy", u"June 2010"},
    {kFirstOfJune, u"mmm yyyy", u"Jun 2010"},
    {kFirstOfJune, u"d mmm yyyy", u"1 Jun 2010"},
    {kFirstOfJune, u"dddd, mmmm d, yyyy", u"Tuesday, June 1, 2010"},
    {kFirstOfJune, u"ddd dd mmm", u"Tue 01 Jun"},
    {kFirstOfJune, u"yyyy, mmmm d", u"2010, June 1"},
    {kFirstOfJune, u"yyyy", u"2010"},
    {kFirstOfJune, u"m/d/yy", u"6/1/10"},
    {kFirstOfJune, u"mm/dd/yyyy", u"06/01/2010"},
    {kFirstOfJune, u"yyyy-mm-dd", u"2010-06-01"},
    {kFirstOfJune, u"yyyymmdd", u"20100601"},
    {kFirstOfJune, u"d. mmmm yyyy", u"1. June 2010"},
    {kFirstOfJune, u"mmm. d", u"Jun. 1"},
    {kFirstOfJune, u"MMMM D, YYYY", u"June 1, 2010"},
    {kFirstOfJune, u"Mmmm d, Yyyy", u"June 1, 2010"},
    {kFirstOfJune, u" yyyy ", u" 2010 "},
    {kFirstOfJune, u"(yyyy)", u"(2010)"},
    {kFirstOfJune, u"[yyyy]", u"[2010]"},
    {kFirstOfJune, u"mmmm\u2013yyyy", u"June\u20132010"},
    {kFirstOfJune, u", ", u", "},
    {kFirstOfJune, u" ", u" "},
    {kFirstOfJune, u"", u"6/1/2010"},
    {kLastOfYear, u"yy", u"99"},
    {kLastOfYear, u"d dd ddd dddd", u"31 31 Fri Friday"},
    {kLastOfYear, u"m mm mmm mmmm", u"12 12 Dec December"},
    {kLastOfYear, u"mmmm d, yyyy", u"December 31, 1999", 0.999},
    {kMidMay, u"dddd, mmmm d, yyyy", u"Wednesday, May 15, 1850"},
    {kMidMay, u"dddd, mmmm d, yyyy", u"Wednesday, May 15, 1850", 0.75},
};

}  // namespace quorvel::tests
