#compdef pandrel gildump pandrel-uilfix pandrel-view pandrel-port convert-tree -redirect-,<,pandrel=gil-file -redirect-,<,gildump=gil-file
# SPDX-License-Identifier: MIT
# zsh completion for pandrel and the programs around it. A new program gets its name above and its
# operands below; its options are read from its --help.
case $service in
  pandrel)
    # Of two options that exclude each other the first on the line counts.
    _arguments -s -S \
      '(-zo30)-zo25[for version 2.5 of the builder (default)]' \
      '(-zo25)-zo30[for version 3.0 of the builder]' \
      '-nozo[for plain Motif, without the builder]' \
      '-genzocallbacks[with -nozo: still connect show, hide, enable and disable]' \
      '-nocomments[with -nozo: leave shells out instead of commenting them out]' \
      '-D-[directory of the icon files]:icon directory:_files -/' \
      '(-openlook)-motif[toggles look like Motif (default)]' \
      '(-motif)-openlook[toggles look like OPEN LOOK]' \
      '(-motif12)-motif11[Motif 1.1 resources (default)]' \
      '(-motif11)-motif12[Motif 1.2 resources]' \
      '(-noreposition)-reposition[move controls so that larger ones fit (default)]' \
      '(-reposition)-noreposition[keep all positions]' \
      '(-noconverticons)-converticons[convert icon files to bitmaps (default)]' \
      '(-converticons)-noconverticons[do not run the icon converters]' \
      '(-ignoregroups)-convertgroups[groups become bulletin boards (default)]' \
      '(-convertgroups)-ignoregroups[leave members of groups where they are]' \
      '(-nogrouplabels)-group_labels[a row-column holds a control and its label (default)]' \
      '(-group_labels)-nogrouplabels[label and control stand side by side]' \
      '(-nomapall)-mapall[invisible objects are shown]' \
      '(-mapall)-nomapall[invisible objects start hidden (default)]' \
      '-dont_rename[accepted, without effect]' \
      '(-quiet)-verbose[write notes (default)]' \
      '(-verbose)-quiet[leave out the notes]' \
      '(- *)-help[list the options]' \
      '(- *)-grammer[the same as -help]' \
      ':UIL module to write:_files -g "*.uil"'
    ;;
  gil-file) _files -g '*.(G|P)' ;;  # after <
  gildump) _message 'no options; < file.G' ;;
  pandrel-uilfix) _arguments '*:UIL module:_files -g "*.uil"' -- ;;
  pandrel-view) _arguments '*:interface:_files -g "*.(G|P|uil|uid)"' -- ;;
  pandrel-port) _arguments '*:interface:_files -g "*.(G|P)"' -- ;;
  convert-tree) _arguments '*:folder:_files -/' -- ;;
esac
