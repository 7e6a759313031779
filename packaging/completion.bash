# bash completion of zelvor, zelvor-cards and zelvor-rehearsal: options and subcommands are those that --help lists.

# The application folder that the command line names; else the present one.
_zelvor_folder()
{
    local i
    for ((i = 1; i < cword - 1; i++)); do
        [[ ${words[i]} == --app-folder ]] && echo "${words[i + 1]}" && return
    done
    echo .
}

_zelvor_packs()
{
    compgen -G "$(_zelvor_folder)/MODULES/QRD_*" | sed 's,.*/QRD_,,'
}

_zelvor_cards()
{
    local cur prev words cword
    _init_completion || return

    local help=--help
    if [[ ${words[0]##*/} == zelvor ]]; then
        if ((cword == 1)); then
            COMPREPLY=($(compgen -W "$("$1" --help 2>/dev/null | awk '/^  [a-z]/ { print $1 }') --help --version" -- "$cur"))
            return
        fi
        help="${words[1]} --help"
    fi

    case $prev in
        --app-folder | --templates)
            _filedir -d
            return
            ;;
        --source | --record | --log | --control-token | --control-cert | --control-key)
            _filedir
            return
            ;;
        --angle)
            COMPREPLY=($(compgen -W 'RAD DEG GRAD' -- "$cur"))
            return
            ;;
        --format)
            COMPREPLY=($(compgen -W 'text json sarif' -- "$cur"))
            return
            ;;
        --language-ui)
            COMPREPLY=($(compgen -W 'en el' -- "$cur"))
            return
            ;;
        --language | --pack)
            COMPREPLY=($(compgen -W "$(_zelvor_packs)" -- "$cur"))
            return
            ;;
        --codepage | --set | --answer | --connection | --main | --remote | --var | --digits | --to | --into | \
            --from | --speed | --feed-port | --amcp | --http | --bind | --channels | --mode | --control | \
            --osc | --osc-allow | --card)
            return
            ;;
    esac

    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W '$(_parse_help "$1" "$help")' -- "$cur"))
    elif [[ ${words[0]##*/} == zelvor && ${words[1]} == run ]]; then
        COMPREPLY=($(compgen -W "$(compgen -G "$(_zelvor_folder)/MODULES/QRD_*/*.csp" | sed 's,.*/,,')" -- "$cur"))
    elif [[ ${words[0]##*/} == zelvor && ${words[1]} == check ]]; then
        COMPREPLY=($(compgen -W "$(_zelvor_packs)" -- "$cur"))
    fi
} &&
    complete -F _zelvor_cards zelvor zelvor-cards zelvor-rehearsal
