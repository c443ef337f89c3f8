# bash completion for qda. Source it, or install it as
# share/bash-completion/completions/qda.

_qda() {
  local current=${COMP_WORDS[COMP_CWORD]}
  local previous=${COMP_WORDS[COMP_CWORD - 1]}
  local command= word words=
  for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    case $word in
      identify | smbios | classes | class | instances | get | snapshot | diff | providers | put | fetch | host | bmc) command=$word && break ;;
    esac
  done
  case $previous in
    --smbios-dump | --log | --password-file | --from)
      compopt -o filenames 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -f -- "$current")
      return
      ;;
    -o | --output)
      if [[ $command == snapshot ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
        return
      fi
      words="table json"
      ;;
    --log-level) words="error warning status debug verbose" ;;
    --provider) words="machine mof" ;;
    *)
      case $command in
        instances) words="--deep --provider --from --smbios-dump --output --log --log-level --help" ;;
        identify | classes | class | get)
          words="--provider --from --smbios-dump --output --log --log-level --help"
          ;;
        smbios) words="--smbios-dump --output --log --log-level --help" ;;
        snapshot) words="--output --provider --smbios-dump --log --log-level --help" ;;
        diff)
          words="--output --log --log-level --help"
          if [[ $current != -* ]]; then
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -f -- "$current")
            return
          fi
          ;;
        providers) words="--output --log --log-level --help" ;;
        bmc) words="--user --password-file --output --log --log-level --help" ;;
        put)
          words="--as --user --password-file --output --log --log-level --help"
          if [[ $current != -* ]]; then
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -f -- "$current")
            return
          fi
          ;;
        fetch | host) words="--output --log --log-level --help" ;;
        *) words="identify smbios classes class instances get snapshot diff providers put fetch host bmc --help --version" ;;
      esac
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}

complete -F _qda qda
