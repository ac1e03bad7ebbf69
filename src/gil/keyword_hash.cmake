# SPDX-License-Identifier: MIT
# Writes keyword_hash.h: a perfect hash of the keywords, made by gperf from the rows of the table of
# words that have a text. It holds offsets of texts (%pic): the dynamic linker would have to relocate
# each pointer at every start. Run with -DGPERF=<program> -DWORDS=<words.def> -DOUTPUT=<header> -P.
set(rows "")
file(STRINGS ${WORDS} lines REGEX "^WORD\\([A-Z0-9_]+, +\"")
foreach(line IN LISTS lines)
  string(REGEX REPLACE "^WORD\\(([A-Z0-9_]+), +\"([^\"]+)\".*" "\\2, \\1" row "${line}")
  string(APPEND rows "${row}\n")
endforeach()

file(WRITE ${OUTPUT}.gperf "%language=C++
%struct-type
%define class-name KeywordHash
%define lookup-function-name Find
%define slot-name text
%readonly-tables
%pic
%compare-lengths
%includes
%{
#include \"gil/tokens.h\"
%}
struct HashedKeyword { int text; int token; };
%%
${rows}")
execute_process(COMMAND ${GPERF} --output-file=${OUTPUT} ${OUTPUT}.gperf COMMAND_ERROR_IS_FATAL ANY)
