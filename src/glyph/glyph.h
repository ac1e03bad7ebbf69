// SPDX-License-Identifier: MIT
// Glyphs: labels that are images. Turns the name of an icon file into the UIL value of a pixmap
// and, where that is wanted, the file into an XBM file by outside programs. When it cannot convert,
// it tells the user which commands would. The caller frees the texts returned with free().
#ifndef PANDREL_GLYPH_GLYPH_H
#define PANDREL_GLYPH_GLYPH_H

// Does all of it for a glyph's name as the file has it, quotes included. Returns the pixmap value,
// whether or not a file could be made.
char* ProcessGlyphFilename(const char* glyph);

// Whether the named file is an X bitmap already; false when it cannot be opened.
bool IsXbmFile(const char* name);

// The bare name of a file: no directory, no extension. Empty for a name that begins with ".".
char* JustFilename(const char* path);

// The bare name followed by ".xbm".
char* CreateXBMFilename(const char* path);

// The UIL value of a pixmap in that file.
char* PixmapConvert(const char* file);

#endif
