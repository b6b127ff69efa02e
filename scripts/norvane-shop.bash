# Completion of norvane-shop for bash: source this file, or put it into /usr/share/bash-completion/completions.
_norvane_shop()
{
    local word=${COMP_WORDS[COMP_CWORD]}
    local IFS=$'\n'
    local choices
    if [ "$COMP_CWORD" -eq 1 ]; then
        # The help names each command at the beginning of a line.
        choices=$("$1" --help 2>/dev/null | sed -n 's/^norvane-shop \([a-z]*\).*/\1/p')
    elif [ "${COMP_WORDS[COMP_CWORD - 1]}" = --vanished ]; then
        choices=$'keep\nremove'
    elif [ "$COMP_CWORD" -eq 2 ] || { [ "${COMP_WORDS[1]}" = publish ] && [ "${word#-}" = "$word" ]; }; then
        choices=$("$1" customers --json 2>/dev/null | sed -n 's/^ *"name": "\(.*\)",$/\1/p')
    else
        choices=$("$1" --help 2>/dev/null | sed -n 's/^ *\(--[a-z]*\).*/\1/p' | sort -u)
    fi
    COMPREPLY=()
    local choice
    for choice in $(compgen -W "$choices" -- "$word"); do
        COMPREPLY+=("$(printf '%q' "$choice")")
    done
}
complete -o default -F _norvane_shop norvane-shop
