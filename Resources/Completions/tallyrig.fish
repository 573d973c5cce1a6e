# SPDX-License-Identifier: GPL-3.0-or-later
# Completion of tallyrig for fish. A test compares commands and options with those of the program.

# Whether the command that stands on the line is one of these.
function __tallyrig_in
    set -l words (commandline -opc)
    test (count $words) -gt 1; and contains -- $words[2] $argv
end

function __tallyrig_outdoor_has
    set -l words (commandline -opc)
    __tallyrig_in outdoor; and test (count $words) -gt 2; and contains -- $words[3] $argv
end

function __tallyrig_contests
    tallyrig contests 2>/dev/null | string replace -r ' +' \t
end

complete -c tallyrig -f
complete -c tallyrig -s h -l help -d 'Zeigt die Hilfe'
complete -c tallyrig -n __fish_use_subcommand -l version -d 'Zeigt die Version'

complete -c tallyrig -n __fish_use_subcommand -a dump -d 'Zeigt ein Log, wie es gelesen wird'
complete -c tallyrig -n __fish_use_subcommand -a read -d 'Sagt, was von einer Datei nicht gelesen wurde'
complete -c tallyrig -n __fish_use_subcommand -a check -d 'Prüft Logs gegen ADIF 3.1.7 und sucht Dubletten'
complete -c tallyrig -n __fish_use_subcommand -a convert -d 'Schreibt ein Log neu'
complete -c tallyrig -n __fish_use_subcommand -a compare -d 'Vergleicht zwei Logs'
complete -c tallyrig -n __fish_use_subcommand -a stats -d 'Zählt die QSOs eines Logs'
complete -c tallyrig -n __fish_use_subcommand -a outdoor -d 'Prüft Logs für Outdoor-Programme'
complete -c tallyrig -n __fish_use_subcommand -a distance -d 'Gibt die Entfernung zweier Locatoren an'
complete -c tallyrig -n __fish_use_subcommand -a call -d 'Sagt, was Rufzeichen verraten'
complete -c tallyrig -n __fish_use_subcommand -a contests -d 'Zählt die Contests auf'
complete -c tallyrig -n __fish_use_subcommand -a rules -d 'Zeigt, wie ein Contest gewertet wird'
complete -c tallyrig -n __fish_use_subcommand -a score -d 'Wertet ein Log nach den Regeln eines Contests'
complete -c tallyrig -n __fish_use_subcommand -a crosscheck -d 'Vergleicht die Logs eines Contests miteinander'

# What stands for itself: logs, for a cross-check folders of logs as well, and contests.
complete -c tallyrig -n '__tallyrig_in dump read check convert compare stats score crosscheck' -F
complete -c tallyrig -n '__tallyrig_outdoor_has check export' -F
complete -c tallyrig -n '__tallyrig_in rules' -a '(__tallyrig_contests)'

complete -c tallyrig -n '__tallyrig_in dump read check compare stats distance call contests rules score crosscheck' -l json -d 'Gibt ein JSON-Dokument aus'

complete -c tallyrig -n '__tallyrig_in check' -l duplicates -x -a 'call_band_mode call_band call_band_mode_date call' -d 'Worin Dubletten übereinstimmen'
complete -c tallyrig -n '__tallyrig_in check' -l no-required -d 'Sucht keine fehlenden Pflichtfelder'
complete -c tallyrig -n '__tallyrig_in check' -l no-format -d 'Prüft keine Werte'
complete -c tallyrig -n '__tallyrig_in check' -l no-duplicates -d 'Sucht keine Dubletten'
complete -c tallyrig -n '__tallyrig_in check' -l no-unknown -d 'Meldet keine unbekannten Felder'

complete -c tallyrig -n '__tallyrig_in convert' -l to -x -a 'adi adx cbr edi' -d 'Das neue Format'
complete -c tallyrig -n '__tallyrig_in convert' -s o -r -F -d 'Die Datei, die geschrieben wird'
complete -c tallyrig -n '__tallyrig_in convert' -l no-header -d 'Lässt den Kopf weg'
complete -c tallyrig -n '__tallyrig_in convert' -l adif-version -x -d 'ADIF-Version im Kopf'
complete -c tallyrig -n '__tallyrig_in convert' -l timestamp -x -d 'Zeitpunkt im Kopf'
complete -c tallyrig -n '__tallyrig_in convert' -l set -x -d 'Setzt ein Feld im Kopf'

complete -c tallyrig -n '__tallyrig_in compare' -l key -x -d 'Felder der Paarung'

complete -c tallyrig -n '__tallyrig_in outdoor; and not __tallyrig_outdoor_has check export' -a 'check export'
complete -c tallyrig -n '__tallyrig_outdoor_has check export' -l program -x -a 'POTA SOTA BOTA WWFF LLOTA WCA GMA' -d 'Das Programm'
complete -c tallyrig -n '__tallyrig_outdoor_has check export' -l role -x -a 'Activator Chaser' -d 'Die Rolle bei SOTA'
complete -c tallyrig -n '__tallyrig_outdoor_has check export' -l json -d 'Gibt ein JSON-Dokument aus'
complete -c tallyrig -n '__tallyrig_outdoor_has export' -s o -x -a '(__fish_complete_directories)' -d 'Der Ordner für die Dateien'

complete -c tallyrig -n '__tallyrig_in rules score crosscheck' -l dxcc -x -d 'Eigener Standort: DXCC-Nummer'
complete -c tallyrig -n '__tallyrig_in rules score crosscheck' -l continent -x -a 'AF AN AS EU NA OC SA' -d 'Eigener Standort: Kontinent'
complete -c tallyrig -n '__tallyrig_in rules score crosscheck' -l cqzone -x -d 'Eigener Standort: CQ-Zone'
complete -c tallyrig -n '__tallyrig_in rules score crosscheck' -l ituzone -x -d 'Eigener Standort: ITU-Zone'
complete -c tallyrig -n '__tallyrig_in rules score crosscheck' -l grid -x -d 'Eigener Standort: Locator'

complete -c tallyrig -n '__tallyrig_in score crosscheck' -l contest -x -a '(__tallyrig_contests)' -d 'Der Contest'

complete -c tallyrig -n '__tallyrig_in crosscheck' -l tolerance -x -d 'Größte Zeitdifferenz in Minuten'
complete -c tallyrig -n '__tallyrig_in crosscheck' -l no-mode -d 'Vergleicht die Betriebsart nicht'
complete -c tallyrig -n '__tallyrig_in crosscheck' -l no-exchange -d 'Vergleicht den Austausch nicht'
complete -c tallyrig -n '__tallyrig_in crosscheck' -l rst -d 'Vergleicht auch den Rapport'
complete -c tallyrig -n '__tallyrig_in crosscheck' -l keep-busted-exchange -d 'Wertet QSOs mit falschem Austausch'
complete -c tallyrig -n '__tallyrig_in crosscheck' -l nil-penalty -x -d 'Strafe je NIL'
complete -c tallyrig -n '__tallyrig_in crosscheck' -l busted-penalty -x -d 'Strafe je Busted Call oder Exchange'
complete -c tallyrig -n '__tallyrig_in crosscheck' -l no-scoring -d 'Berechnet keine Punkte'
complete -c tallyrig -n '__tallyrig_in crosscheck' -l evaluator -x -d 'Wer auswertet'
complete -c tallyrig -n '__tallyrig_in crosscheck' -l reports -x -a '(__fish_complete_directories)' -d 'Wohin die Berichte kommen'
complete -c tallyrig -n '__tallyrig_in crosscheck' -l date -x -d 'Datum der Auswertung'
complete -c tallyrig -n '__tallyrig_in crosscheck' -l threads -x -d 'Höchstens so viele Threads'
