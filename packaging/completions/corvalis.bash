# bash completion for corvalis: options, kinds of disc, files by kind.

# The kinds of disc, and the usual endings of the files that go on each; playlists as well. Others are taken, too, but would
# offer every file of a folder.
_corvalis_kinds=("Audio CD" "MP3 CD" "MP3 DVD" "Video DVD" "Video Blu-ray" "Data CD" "Data DVD" "Data Blu-ray")
_corvalis_audio='wma|wav|cda|mp3|mp2|mpga|m4a|aac|ac3|aif|aiff|ape|flac|m4b|mka|oga|ogg|opus|wv|m3u|m3u8|pls|xspf'
_corvalis_video='wmv|mov|mpg|mpeg|mpe|avi|asf|asx|qt|mp4|mpeg-4|flv|ts|3gp|fli|m1v|m2v|mjpg|m2ts|m4v|mkv|mts|ogv|vob|webm|m3u|m3u8|pls|xspf'

# _corvalis_bare WORD: without the quotes and backslashes that it was typed with. Nothing of it is run.
_corvalis_bare() { printf '%s' "${1//[\\\"\']/}"; }

# _corvalis_answer WORD CANDIDATE...: those that begin with the word, with the blanks that they need.
_corvalis_answer() {
    local word candidate
    word=$(_corvalis_bare "$1")
    shift
    for candidate; do
        if [[ $candidate == "$word"* ]]; then COMPREPLY+=("$(printf '%q' "$candidate")"); fi
    done
}

# _corvalis_files WORD PATTERN: folders, and files whose ending is one of the pattern; all files for an empty one.
_corvalis_files() {
    local pattern=$2 path
    compopt -o filenames
    while IFS= read -r path; do
        if [[ -d $path || -z $pattern || ${path,,} =~ \.($pattern)$ ]]; then COMPREPLY+=("$path"); fi
    done < <(compgen -f -- "$(_corvalis_bare "$1")")
}

# The kind of disc that the words before the current one name.
_corvalis_kind() {
    local i
    for ((i = 1; i + 1 < COMP_CWORD; ++i)); do
        if [[ ${COMP_WORDS[i]} == --burn ]]; then _corvalis_bare "${COMP_WORDS[i + 1]}"; fi
    done
}

_corvalis() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} kind
    COMPREPLY=()
    case $previous in
    --burn) _corvalis_answer "$word" "${_corvalis_kinds[@]}"; return ;;
    --action) _corvalis_answer "$word" new-audio-cd new-data-disc write-image copy-disc; return ;;
    esac
    if [[ $word == -* && " ${COMP_WORDS[*]:0:COMP_CWORD} " != *" -- "* ]]; then
        _corvalis_answer "$word" --burn --show --for-players --new-window --action --help --version
        return
    fi
    kind=$(_corvalis_kind)
    case $kind in
    Audio* | MP3*) _corvalis_files "$word" "$_corvalis_audio" ;;
    Video*) _corvalis_files "$word" "$_corvalis_video" ;;
    Data*) _corvalis_files "$word" '' ;;
    *) _corvalis_files "$word" "corvalis|iso|img|dmg|$_corvalis_audio|$_corvalis_video" ;;
    esac
}
complete -F _corvalis corvalis
