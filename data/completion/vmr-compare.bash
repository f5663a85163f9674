# Completion of vmr-compare for bash. The grammar of the command line is known to vmr-complete, which lies with the program.

_vmr_compare()
{
    local cur prev words cword
    _init_completion -n : || return

    local program helper kind text
    program=$(type -P -- "${words[0]}") || return
    helper=$(dirname "$(dirname "$(readlink -f "$program")")")/libexec/vmr/vmr-complete
    [[ -x $helper ]] || return

    while IFS=' ' read -r kind text; do
        case $kind in
        word | begin | name)
            [[ $text == "$cur"* ]] || continue
            [[ $kind != name ]] || printf -v text %q "$text"
            COMPREPLY+=("$text")
            [[ $kind != begin ]] || compopt -o nospace 2>/dev/null
            ;;
        files)
            [[ $cur == -* ]] || _filedir $text
            ;;
        esac
    done < <("$helper" --compare "${words[@]:1:cword-1}")
    __ltrim_colon_completions "$cur"
} && complete -F _vmr_compare vmr-compare
