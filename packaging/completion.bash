# bash completion of zelvor, zelvor-cards and zelvor-rehearsal: options and subcommands are those that --help lists.

_zelvor_cards()
{
    local cur prev words cword
    _init_completion || return

    local help=--help folder i
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
        --source | --record | --log)
            _filedir
            return
            ;;
        --angle)
            COMPREPLY=($(compgen -W 'RAD DEG GRAD' -- "$cur"))
            return
            ;;
        --codepage | --language | --set | --answer | --connection | --main | --remote | --var | --digits | --to | --into | \
            --from | --speed | --pack | --feed-port | --amcp | --http | --bind | --channels)
            return
            ;;
    esac

    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W '$(_parse_help "$1" "$help")' -- "$cur"))
    elif [[ ${words[0]##*/} == zelvor && ${words[1]} == run ]]; then
        # The cards of all packs of the folder named.
        folder=.
        for ((i = 2; i < cword - 1; i++)); do
            [[ ${words[i]} == --app-folder ]] && folder=${words[i + 1]}
        done
        COMPREPLY=($(compgen -W '$(cd "$folder" 2>/dev/null && printf "%s\n" MODULES/QRD_*/*.csp | sed "s,.*/,,")' -- "$cur"))
    fi
} &&
    complete -F _zelvor_cards zelvor zelvor-cards zelvor-rehearsal
