# Completion of vkmeasure in bash.
_vkmeasure()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    case $previous in
        --format) mapfile -t COMPREPLY < <(compgen -W "json csv" -- "$current"); return ;;
        --roi | --row | --column | --peaks | --wavelength | --page | --jobs) return ;;
        --regions) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -f -- "$current"); return ;;
    esac
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "--roi --regions --row --column --peaks --histogram
            --wavelength --page --format --jobs --help --version" -- "$current")
    else
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}
complete -F _vkmeasure vkmeasure
