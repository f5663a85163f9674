# Completion of vmr and vmr-compare for bash. The grammar of their command lines is known to vmr-complete, which lies with
# the programs.

_vmr()
{
    local cur prev words cword
    _init_completion -n : || return

    local program helper kind text
    local -a before=("${words[@]:1:cword-1}")
    program=$(type -P -- "${words[0]}") || return
    helper=$(dirname "$(dirname "$(readlink -f "$program")")")/libexec/vmr/vmr-complete
    [[ -x $helper ]] || return
    [[ ${words[0]##*/} != vmr-compare ]] || before=(--compare "${before[@]}")

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
    done < <("$helper" "${before[@]}")
    __ltrim_colon_completions "$cur"
} && complete -F _vmr vmr vmr-compare
