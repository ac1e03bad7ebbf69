// SPDX-License-Identifier: MIT
// Cuts white space (the standard library's class, in the current locale) off strings.
//
// note [the first character stays]
// Functions that cut a string in place never remove its first character, so that no text becomes
// empty: a string of blanks becomes one blank. OsiRemoveEndDigits follows the same rule.
#ifndef PANDREL_OSI_TRIM_H
#define PANDREL_OSI_TRIM_H

// True for null, an empty string, or one of white space only.
bool OsiIsEmptyString(const char* s);

// A new copy (OsiMalloc memory) of `s` without leading and trailing white space; null for null.
// Here a string of blanks becomes the empty string.
char* OsiStrRemBeginEndSpaces(const char* s);

// Cuts trailing white space off `s` in place, but for its first character. Null is left alone.
void OsiRemoveEndBlanks(char* s);

// Cuts trailing newline characters off `s` in place, but for its first character. Null is left
// alone.
void OsiRemoveEndNewlines(char* s);

#endif
