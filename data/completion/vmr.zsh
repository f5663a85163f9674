#compdef vmr vmr-compare
# Completion of vmr and vmr-compare for zsh. The grammar of their command lines is known to vmr-complete, which lies with
# the programs.

local helper=${${commands[$words[1]]:-$words[1]}:A:h:h}/libexec/vmr/vmr-complete
[[ -x $helper ]] || return 1

local kind text pattern result=1
local -a before finished begun patterns
[[ ${words[1]:t} == vmr-compare ]] && before=(--compare)
(( CURRENT > 2 )) && before+=("${(@Q)words[2,CURRENT-1]}")
while IFS=' ' read -r kind text; do
    case $kind in
    word | name) finished+=("$text") ;;
    begin) begun+=("$text") ;;
    files) patterns+=("${text:+*.$text(-.)}") ;;
    esac
done < <("$helper" "$before[@]")

(( $#finished )) && compadd -a finished && result=0
(( $#begun )) && compadd -S '' -a begun && result=0
if [[ $words[CURRENT] != -* ]]; then
    for pattern in "$patterns[@]"; do
        if [[ -n $pattern ]]; then
            _files -g "$pattern" && result=0
        else
            _files && result=0
        fi
    done
fi
return result
