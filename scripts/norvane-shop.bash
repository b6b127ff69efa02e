# Completion of norvane-shop for bash: source this file, or put it into /usr/share/bash-completion/completions.
#
# Names of customers are names of folders, so anybody may have chosen them: they are compared and quoted as plain text,
# and never reach anything that expands them.

# Prints the names of the customers, one in each line.
_norvane_shop_customers()
{
    "$1" customers --json 2>/dev/null | sed -n -e 's/\\"/"/g; s/\\\\/\\/g; s/^ *"name": "\(.*\)",$/\1/p'
}

# Prints a name as it must be typed after the opening quote $1, if any.
_norvane_shop_quoted()
{
    case $1 in
        \") sed 's/[\\"$`]/\\&/g' <<< "$2" ;;
        \') printf '%s\n' "${2//\'/\'\\\'\'}" ;;
        *) printf '%q\n' "$2" ;;
    esac
}

_norvane_shop()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} quote= choice
    local -a choices
    case $word in
        [\"\']*) quote=${word:0:1} word=${word:1} ;;
    esac
    [ "$quote" = \' ] || word=$(sed 's/\\\(.\)/\1/g' <<< "$word")

    if [ "$COMP_CWORD" -eq 1 ]; then
        # The help names each command at the beginning of a line.
        mapfile -t choices < <("$1" --help 2>/dev/null | sed -n 's/^norvane-shop \([a-z-]*\).*/\1/p')
    elif [ "$before" = --vanished ]; then
        choices=(keep remove)
    elif [[ $before = --to && ${COMP_WORDS[1]} = copy || $before = --copies || $before = --reports || $before = --html ||
        ${COMP_WORDS[1]} =~ ^(verify|adopt)$ && ${word#-} = "$word" ]]; then
        choices=() # a file or folder
    elif [ "$before" = --separator ]; then
        choices=(comma semicolon tab)
    elif [[ $before = --on || $before = --show || $before = --cancel || $before = --plan-again ||
        $before = --day || $before = --wait || $before = --retry || $before = --every || $before = --out ]]; then
        choices=() # a day, a time, the number of a list
    elif [ "${COMP_WORDS[1]}" = table ] && [ "$COMP_CWORD" -eq 3 ]; then
        mapfile -t choices < <("$1" tables 2>/dev/null | sed -e 1d -e 's/ .*//')
    elif [ "${COMP_WORDS[1]}" = compare ] && [ "$COMP_CWORD" -ge 3 ] && [ "${word#-}" = "$word" ]; then
        choices=(plu status groups mixes functions keyboards lookups cards options messages staff times taxes)
    elif [ "${COMP_WORDS[1]}" = chain ] && [ "$COMP_CWORD" -eq 2 ]; then
        choices=(check pages init add-shop)
    elif [ "${COMP_WORDS[1]}" = chain ] && [ "${COMP_WORDS[2]}" != check ] && [ "$word" = "${word#-}" ]; then
        choices=() # no shops of this computer
    elif [[ ${COMP_WORDS[1]} = plus && $COMP_CWORD -eq 3 || ${COMP_WORDS[1]} = table && $COMP_CWORD -eq 4 ]]; then
        choices=(export import)
    elif [ "${word#-}" = "$word" ] && case $before:${COMP_WORDS[1]} in
            new:new) false ;; # a name that does not exist yet
            --like:* | *:publish | *:chain | *:night | *:copy | *:copy-programme | *:planned | *:apply-planned | \
                *:status | *:convert) true ;;
            *) [ "$COMP_CWORD" -eq 2 ] ;;
        esac; then
        mapfile -t choices < <(_norvane_shop_customers "$1")
    else
        mapfile -t choices < <("$1" help "${COMP_WORDS[1]}" 2>/dev/null | sed -n 's/^ *\(--[a-z-]*\).*/\1/p')
    fi

    COMPREPLY=()
    for choice in "${choices[@]}"; do
        [ "${choice:0:${#word}}" != "$word" ] || COMPREPLY+=("$(_norvane_shop_quoted "$quote" "$choice")")
    done
}
complete -o default -F _norvane_shop norvane-shop
