# bash completion for drutil: verbs, their words, the drives that it lists.

# The words behind each verb.
declare -gA _drutil_words=(
    [list]='' [status]='-drive' [tracks]='-drive' [folder]='-drive'
    [burn]='-audio -noverify -speed -drive'
    [erase]='full quick -drive'
    [tray]='eject close -drive'
    [insert]='cd-r cd-rw dvd-r dvd+r dvd-rw dvd+rw bd-r bd-re none -drive'
    [help]='list status tracks burn erase tray folder insert'
)

_drutil() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} verb=${COMP_WORDS[1]}
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "${!_drutil_words[*]} --help --version" -- "$word")
    elif [[ $previous == -drive ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$("${COMP_WORDS[0]}" list 2>/dev/null | sed -n 's/^ *\([0-9][0-9]*\) .*/\1/p')" -- "$word")
    elif [[ $previous == -speed ]]; then
        mapfile -t COMPREPLY < <(compgen -W 'max' -- "$word")
    elif [[ $verb == burn && $word != -* ]]; then
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
    else
        mapfile -t COMPREPLY < <(compgen -W "${_drutil_words[$verb]-} --help" -- "$word")
    fi
}
complete -F _drutil drutil
