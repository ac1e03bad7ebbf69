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

// Reads `s`: blanks and tabs, perhaps a "-", then decimal digits up to the end. No digits at all,
// and null, read as 0. On failure the result is false and `*value` 0; `*error` is an
// OsiNumberError. Either output may be null. A text that is no text in the current locale is not a
// number.
bool OsiStrToInt(const char* s, int* value, int* error);

// A new string (OsiMalloc memory): `n` in decimal.
char* OsiIntToStr(int n);

// Cuts trailing white space and then a trailing decimal number off `s` in place, and returns the
// number; 0 when there is none or it is too large (it is cut all the same). The first character is
// never examined nor removed: "123" becomes "1" and gives 23. Null and the empty string give 0.
int OsiRemoveEndDigits(char* s);

#endif
