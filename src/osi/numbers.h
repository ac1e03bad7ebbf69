// SPDX-License-Identifier: MIT
// Decimal numbers in strings, and the numbers that names end in.
#ifndef PANDREL_OSI_NUMBERS_H
#define PANDREL_OSI_NUMBERS_H

// What OsiStrToInt says about a text.
enum OsiNumberError {
  kOsiNumberOk = 0,
  kOsiNumberTooLarge = -1,  // 2^30 or more, whatever the sign
  kOsiNotANumber = -2,      // something other than digits follows the digits
};

// Reads `s`: blanks and tabs, perhaps a "-", then decimal digits up to the end. Null, and no digits
// at all, read as 0. On failure returns false and sets `*value` to 0. Sets `*error` to an
// OsiNumberError. Either output may be null. Bytes that are no text in the current locale are not a
// number.
bool OsiStrToInt(const char* s, int* value, int* error);

// A new string (OsiMalloc memory): `n` in decimal.
char* OsiIntToStr(int n);

// Cuts trailing white space and then a trailing decimal number off `s` in place, and returns the
// number; 0 when there is none, or when it is too large (and cut off all the same). Never looks at
// the first character: "123" becomes "1" and gives 23. Null and the empty string give 0.
int OsiRemoveEndDigits(char* s);

#endif
