# Sourced by ./test and scripts/check-windows-package: runs programs for Windows under wine, in a Windows of its own that
# is made anew and gone at the end.

# begin_wine FOLDER: makes a Windows in FOLDER, which is emptied. Its user's documents and desktop are below FOLDER/home:
# otherwise they would be the real ones. The display that its windows go to is the one of this moment.
begin_wine() {
    local programs
    programs=$(dirname "$(PATH=$PATH:/usr/lib/wine command -v wineserver64)")
    rm -rf "$1"
    mkdir -p "$1/home/Documents" "$1/prefix"
    wine_folder=$(cd "$1" && pwd)
    export HOME=$wine_folder/home WINEPREFIX=$wine_folder/prefix WINEDEBUG=-all LC_ALL=C.UTF-8
    export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=;winedbg.exe="
    export PATH=$programs:$PATH
    trap end_wine EXIT
    # The server that the programs share stays, so that not every one of them waits for a start of it.
    wineserver64 -p </dev/null >/dev/null 2>&1
    # The first program makes the prefix.
    wine64 cmd /c exit 0 </dev/null >/dev/null 2>&1
    {
        echo "Windows Registry Editor Version 5.00"
        printf '\r\n[HKEY_CURRENT_USER\\Software\\Wine]\r\n"Version"="win10"\r\n'
        printf '\r\n[HKEY_CURRENT_USER\\Software\\Wine\\Fonts\\Replacements]\r\n'
        printf '"%s"="Liberation Sans"\r\n' "Segoe UI" "Tahoma" "MS Shell Dlg" "MS Shell Dlg 2" "MS Sans Serif" \
            "Microsoft Sans Serif" "Arial"
    } >"$wine_folder/settings.reg"
    wine64 reg import "$(windows_path "$wine_folder/settings.reg")" </dev/null >/dev/null 2>&1
}

# in_wine PROGRAM ARG...: what it says on standard error that is wine's own goes to a file, since a program that outlives
# it would hold a pipe open.
in_wine() {
    wine64 "$@" </dev/null 2>>"$wine_folder/wine.log"
}

end_wine() {
    [ -n "${wine_folder-}" ] || return 0
    wineserver64 -k </dev/null >/dev/null 2>&1 || true
    for _ in 1 2 3 4 5; do
        rm -rf "$wine_folder/prefix" 2>/dev/null && break
        sleep 0.5
    done
    wine_folder=
}

# windows_path PATH: as a program under wine is told it.
windows_path() { echo "Z:$(realpath -m "$1" | tr / '\\')"; }
