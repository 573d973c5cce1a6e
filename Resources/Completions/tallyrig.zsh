#compdef tallyrig
# SPDX-License-Identifier: GPL-3.0-or-later
# Completion of tallyrig for zsh. A test compares commands and options with those of the program.

_tallyrig_contests() {
    local -a contests
    contests=(${(f)"$(tallyrig contests 2>/dev/null | sed 's/  */:/')"})
    _describe -t contests Contest contests
}

_tallyrig_outdoor() {
    local -a commands both
    commands=(
        'check:Prüft, ob ein Log sich einreichen lässt'
        'export:Schreibt die Dateien eines Logs'
    )
    both=(
        '(-h --help)'{-h,--help}'[Zeigt die Hilfe]'
        '--program[Das Programm]:Programm:(POTA SOTA BOTA WWFF LLOTA WCA GMA)'
        '--role[Die Rolle bei SOTA]:Rolle:(Activator Chaser)'
        '--json[Gibt ein JSON-Dokument aus]'
        '1:Log:_files'
    )
    if (( CURRENT == 2 )); then
        _describe -t commands Befehl commands
        return
    fi
    local command=$words[2]
    shift words
    (( CURRENT-- ))
    case $command in
        check) _arguments -s $both ;;
        export) _arguments -s $both '-o[Der Ordner für die Dateien]:Ordner:_files -/' ;;
    esac
}

_tallyrig() {
    local -a commands help json station
    commands=(
        'dump:Zeigt ein Log, wie es gelesen wird'
        'read:Sagt, was von einer Datei nicht gelesen wurde'
        'check:Prüft Logs gegen ADIF 3.1.7 und sucht Dubletten'
        'convert:Schreibt ein Log neu'
        'compare:Vergleicht zwei Logs'
        'stats:Zählt die QSOs eines Logs'
        'outdoor:Prüft Logs für Outdoor-Programme und schreibt deren Dateien'
        'distance:Gibt die Entfernung zweier Locatoren an'
        'call:Sagt, was Rufzeichen verraten'
        'contests:Zählt die Contests auf'
        'rules:Zeigt, wie ein Contest gewertet wird'
        'score:Wertet ein Log nach den Regeln eines Contests'
        'crosscheck:Vergleicht die Logs eines Contests miteinander'
    )
    help=('(-h --help)'{-h,--help}'[Zeigt die Hilfe]')
    json=('--json[Gibt ein JSON-Dokument aus]')
    station=(
        '--dxcc[Eigener Standort]:DXCC-Nummer'
        '--continent[Eigener Standort]:Kontinent:(AF AN AS EU NA OC SA)'
        '--cqzone[Eigener Standort]:CQ-Zone'
        '--ituzone[Eigener Standort]:ITU-Zone'
        '--grid[Eigener Standort]:Locator'
    )
    if (( CURRENT == 2 )); then
        if [[ $words[2] == -* ]]; then
            _arguments $help '--version[Zeigt die Version]'
        else
            _describe -t commands Befehl commands
        fi
        return
    fi
    local command=$words[2]
    shift words
    (( CURRENT-- ))
    case $command in
        dump | stats) _arguments -s $help $json '1:Log:_files' ;;
        read) _arguments -s $help $json '*:Datei:_files' ;;
        check)
            _arguments -s $help $json \
                '--duplicates[Worin Dubletten übereinstimmen]:Kriterium:(call_band_mode call_band call_band_mode_date call)' \
                '--no-required[Sucht keine fehlenden Pflichtfelder]' \
                '--no-format[Prüft keine Werte]' \
                '--no-duplicates[Sucht keine Dubletten]' \
                '--no-unknown[Meldet keine unbekannten Felder]' \
                '*:Log:_files'
            ;;
        convert)
            _arguments -s $help \
                '--to[Das neue Format]:Format:(adi adx cbr edi)' \
                '-o[Die Datei, die geschrieben wird]:Datei:_files' \
                '--no-header[Lässt den Kopf weg]' \
                '--adif-version[ADIF-Version im Kopf]:Version' \
                '--timestamp[Zeitpunkt im Kopf]:yyyyMMdd HHmmss' \
                '*--set[Setzt ein Feld im Kopf]:NAME=WERT' \
                '1:Log:_files'
            ;;
        compare) _arguments -s $help $json '--key[Felder der Paarung]:Felder' '1:Log:_files' '2:Log:_files' ;;
        outdoor) _tallyrig_outdoor ;;
        distance) _arguments -s $help $json '1:Locator' '2:Locator' ;;
        call) _arguments -s $help $json '*:Rufzeichen' ;;
        contests) _arguments -s $help $json ;;
        rules) _arguments -s $help $json $station '1:Contest:_tallyrig_contests' ;;
        score) _arguments -s $help $json $station '--contest[Der Contest]:Contest:_tallyrig_contests' '1:Log:_files' ;;
        crosscheck)
            _arguments -s $help $json $station \
                '--contest[Der Contest]:Contest:_tallyrig_contests' \
                '--tolerance[Größte Zeitdifferenz]:Minuten' \
                '--no-mode[Vergleicht die Betriebsart nicht]' \
                '--no-exchange[Vergleicht den Austausch nicht]' \
                '--rst[Vergleicht auch den Rapport]' \
                '--keep-busted-exchange[Wertet QSOs mit falschem Austausch]' \
                '--nil-penalty[Strafe je NIL]:Vielfaches' \
                '--busted-penalty[Strafe je Busted Call oder Exchange]:Vielfaches' \
                '--no-scoring[Berechnet keine Punkte]' \
                '--evaluator[Wer auswertet]:Rufzeichen oder Name' \
                '--reports[Wohin die Berichte kommen]:Ordner:_files -/' \
                '--date[Datum der Auswertung]:JJJJ-MM-TT' \
                '--threads[Höchstens so viele Threads]:Zahl' \
                '*:Log oder Ordner:_files'
            ;;
    esac
}

_tallyrig "$@"
