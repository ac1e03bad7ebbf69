# SPDX-License-Identifier: MIT
# bash completion for pandrel: its options, directories after -D, and the module to write.
_pandrel() {
  local current=${COMP_WORDS[COMP_CWORD]}
  case $current in
    -D*)
      mapfile -t COMPREPLY < <(compgen -d -P -D -- "${current#-D}")
      compopt -o nospace
      ;;
    -*)
      mapfile -t COMPREPLY < <(compgen -W '
        -zo25 -zo30 -nozo -genzocallbacks -nocomments -D
        -motif -openlook -motif11 -motif12
        -reposition -noreposition -converticons -noconverticons
        -convertgroups -ignoregroups -group_labels -nogrouplabels
        -mapall -nomapall -dont_rename -verbose -quiet -help -grammer' -- "$current")
      ;;
    *)
      compopt -o filenames
      mapfile -t COMPREPLY < <(compgen -f -X '!*.uil' -- "$current"; compgen -d -- "$current")
      ;;
  esac
}
complete -F _pandrel pandrel
