# SPDX-License-Identifier: GPL-3.0-or-later
# Completion of tallyrig for bash. A test compares commands and options with those of the program.

_tallyrig_options() {
    local station='--dxcc --continent --cqzone --ituzone --grid'
    case $1 in
    '') echo '-h --help --version' ;;
    dump | read | stats | distance | call | contests) echo '-h --help --json' ;;
    check) echo '-h --help --duplicates --no-required --no-format --no-duplicates --no-unknown --json' ;;
    convert) echo '-h --help --to -o --no-header --adif-version --timestamp --set' ;;
    compare) echo '-h --help --key --json' ;;
    outdoor) echo '-h --help' ;;
    'outdoor check') echo '-h --help --program --role --json' ;;
    'outdoor export') echo '-h --help --program --role -o --json' ;;
    rules) echo "-h --help $station --json" ;;
    score) echo "-h --help --contest $station --json" ;;
    crosscheck)
        echo "-h --help --contest $station --tolerance --no-mode --no-exchange --rst --keep-busted-exchange" \
            '--nil-penalty --busted-penalty --no-scoring --evaluator --reports --date --threads --json'
        ;;
    esac
}

# The words offered behind an option, or in place of an argument; "<file>" and "<folder>" stand for names.
_tallyrig_values() {
    case $2 in
    --duplicates) echo 'call_band_mode call_band call_band_mode_date call' ;;
    --to) echo 'adi adx cbr edi' ;;
    --program) echo 'POTA SOTA BOTA WWFF LLOTA WCA GMA' ;;
    --role) echo 'Activator Chaser' ;;
    --continent) echo 'AF AN AS EU NA OC SA' ;;
    --contest) tallyrig contests 2>/dev/null | cut -d' ' -f1 ;;
    --reports) echo '<folder>' ;;
    -o) [ "$1" = 'outdoor export' ] && echo '<folder>' || echo '<file>' ;;
    -*) ;;
    *)
        case $1 in
        '') echo 'dump read check convert compare stats outdoor distance call contests rules score crosscheck' ;;
        outdoor) echo 'check export' ;;
        rules) tallyrig contests 2>/dev/null | cut -d' ' -f1 ;;
        distance | call | contests) ;;
        *) echo '<file>' ;;
        esac
        ;;
    esac
}

_tallyrig() {
    local word=${COMP_WORDS[COMP_CWORD]} before= command= index values
    COMPREPLY=()
    for ((index = 1; index < COMP_CWORD; index++)); do
        [[ ${COMP_WORDS[index]} == -* ]] && continue
        if [[ -z $command ]]; then
            command=${COMP_WORDS[index]}
        elif [[ $command == outdoor ]]; then
            command+=" ${COMP_WORDS[index]}"
        else
            break
        fi
    done
    case ${COMP_WORDS[COMP_CWORD - 1]} in
    # Those that take no value have an argument behind them.
    -h | --help | --version | --json | --no-* | --rst | --keep-busted-exchange) ;;
    -?*) before=${COMP_WORDS[COMP_CWORD - 1]} ;;
    esac
    if [[ $word == -* && -z $before ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_tallyrig_options "$command")" -- "$word")
        return
    fi
    values=$(_tallyrig_values "$command" "$before")
    case $values in
    '<file>' | '<folder>')
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen "$([[ $values == '<file>' ]] && echo -f || echo -d)" -- "$word")
        ;;
    *) mapfile -t COMPREPLY < <(compgen -W "$values" -- "$word") ;;
    esac
}

complete -F _tallyrig tallyrig
