# For scripts with a virtual X server: they have a folder $scratch and a function fail TEXT that ends
# them, and stop the process $server at their end.

# within SECONDS COMMAND...: tries the command ten times a second until it succeeds.
within() {
  local tries=$(($1 * 10))
  shift
  until "$@"; do
    ((tries-- > 0)) || return 1
    sleep 0.1
  done
}

# Without -noreset it begins anew, and takes nobody meanwhile, whenever its last client has gone.
start_server() {  # WIDTHxHEIGHTxDEPTH
  local number
  mkfifo "$scratch/number"
  Xvfb -displayfd 3 -noreset -screen 0 "$1" -nolisten tcp 3>"$scratch/number" 2>"$scratch/xvfb.err" &
  server=$!
  read -r -t 20 number <"$scratch/number" || fail "no X server: $(cat "$scratch/xvfb.err")"
  export DISPLAY=:$number
  within 20 xdotool getdisplaygeometry >/dev/null 2>&1 || fail "the X server $number takes nobody"
}

find_window() {
  window=$(xdotool search --onlyvisible --name "^Quill \(Quillbook\)$" 2>/dev/null | head -n 1)
  [[ -n $window ]]
}
