# SPDX-License-Identifier: MIT
# bash completion for pandrel and the programs around it.

# What each program takes: the suffixes of its operands, or "folders". A new program gets its row here,
# one in pandrel.zsh, and its name in the list of integration/CMakeLists.txt; its options are read from
# its --help.
declare -gA _pandrel_operands=(
  [pandrel]='uil'
  [gildump]=''
  [pandrel-uilfix]='uil'
  [pandrel-view]='G P uil uid'
  [pandrel-port]='G P'
  [convert-tree]='folders'
)
# The converter's own options; gildump has none.
_pandrel_options='
  -zo25 -zo30 -nozo -genzocallbacks -nocomments -D
  -motif -openlook -motif11 -motif12
  -reposition -noreposition -converticons -noconverticons
  -convertgroups -ignoregroups -group_labels -nogrouplabels
  -mapall -nomapall -dont_rename -verbose -quiet -help -grammer'

# _pandrel_files WORD SUFFIX...: folders, and the files with one of the suffixes.
_pandrel_files() {
  local word=$1 suffix
  shift
  compopt -o filenames
  mapfile -t COMPREPLY < <(
    compgen -d -- "$word"
    for suffix; do compgen -f -X "!*.$suffix" -- "$word"; done
  )
}

_pandrel() {
  local program=${1##*/} word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
  local operands=${_pandrel_operands[$program]-}
  if [[ $word == '<' ]]; then
    before='<' word=
  fi
  case $before in
    '<')
      if [[ $program == pandrel-uilfix ]]; then _pandrel_files "$word" uil; else _pandrel_files "$word" G P; fi
      return
      ;;
    '>' | '>>' | '2>')
      compopt -o default
      return
      ;;
  esac
  case $program:$word in
    pandrel:-D*)
      mapfile -t COMPREPLY < <(compgen -d -P -D -- "${word#-D}")
      compopt -o nospace
      ;;
    pandrel:-*)
      mapfile -t COMPREPLY < <(compgen -W "$_pandrel_options" -- "$word")
      ;;
    gildump:-*) ;;
    *:-*)
      # Of an option that takes its value or a part of its name behind it, up to there.
      mapfile -t COMPREPLY < <(compgen -W "$("$1" --help 2> /dev/null |
        grep -o -E '(^|[[:space:],[(|])--?[[:lower:]][[:lower:][:digit:]-]*=?' | tr -d ' \t,[(|')" -- "$word")
      if [[ ${COMPREPLY[*]} == --*[=-] ]]; then compopt -o nospace; fi
      ;;
    *)
      if [[ $operands == folders ]]; then
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
      else
        # shellcheck disable=SC2086 # the list is split on purpose
        _pandrel_files "$word" $operands
      fi
      ;;
  esac
}
complete -F _pandrel "${!_pandrel_operands[@]}"
