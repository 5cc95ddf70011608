# Completion for dorvan-cli: subcommands, options and their choices, as the program itself tells them.

_dorvan_cli() {
    local program=${COMP_WORDS[0]} current=${COMP_WORDS[COMP_CWORD]} previous= word help choices place
    local -a commands=()
    COMPREPLY=()
    ((COMP_CWORD > 1)) && previous=${COMP_WORDS[COMP_CWORD - 1]}
    help=$("$program" --help 2>/dev/null)
    for ((place = 1; place < COMP_CWORD; ++place)); do
        word=${COMP_WORDS[place]}
        _dorvan_cli_subcommands "$help" | grep -qx -- "$word" || continue
        commands+=("$word")
        help=$("$program" "${commands[@]}" --help 2>/dev/null)
    done

    if [[ $previous == --* ]]; then # a choice, a file, or something that only the user knows
        choices=$(sed -nE "s/^ *$previous [A-Z]+:\{([^}]*)\}.*/\1/p" <<<"$help" | tr ',' ' ')
        [[ -n $choices ]] && COMPREPLY=($(compgen -W "$choices" -- "$current"))
        return
    fi
    if [[ $current == -* ]]; then
        COMPREPLY=($(compgen -W "$(grep -oE '^ *(-[a-z],)?--[a-z-]+' <<<"$help" | grep -oE -- '--[a-z-]+')" -- "$current"))
        return
    fi
    choices=$(_dorvan_cli_subcommands "$help")
    if [[ -n $choices ]]; then
        COMPREPLY=($(compgen -W "$choices" -- "$current"))
    else
        compopt -o filenames 2>/dev/null || true # fails outside of a completion
        COMPREPLY=($(compgen -f -- "$current"))
    fi
}

_dorvan_cli_subcommands() {
    sed -nE '/^Subcommands:/,/^$/s/^  ([a-z-]+) .*/\1/p' <<<"$1"
}

complete -F _dorvan_cli dorvan-cli
