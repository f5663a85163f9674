#compdef vmr-compare
# Completion of vmr-compare for zsh. The grammar of the command line is known to vmr-complete, which lies with the program.

local helper=${${commands[$words[1]]:-$words[1]}:A:h:h}/libexec/vmr/vmr-complete
[[ -x $helper ]] || return 1

local kind text result=1
local -a finished begun
local -a patterns
while IFS=' ' read -r kind text; do
    case $kind in
    word | name) finished+=("$text") ;;
    begin) begun+=("$text") ;;
    files) patterns+=("${text:+*.$text(-.)}") ;;
    esac
done < <("$helper" --compare "${(@Q)words[2,CURRENT-1]}")

(( $#finished )) && compadd -a finished && result=0
(( $#begun )) && compadd -S '' -a begun && result=0
if [[ $words[CURRENT] != -* ]]; then
    local pattern
    for pattern in "$patterns[@]"; do
        if [[ -n $pattern ]]; then
            _files -g "$pattern" && result=0
        else
            _files && result=0
        fi
    done
fi
return result
