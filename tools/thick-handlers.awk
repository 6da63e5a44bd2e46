# Reads "FILE<tab>LINE<tab>CODE"; prints the paint and tap handlers whose bodies have more than
# `limit` lines of code. A definition begins at the start of a line and its closing brace stands there.

BEGIN {
  handler = "::(paintEvent|mousePressEvent|mouseMoveEvent|mouseReleaseEvent|mouseDoubleClickEvent" \
            "|tabletEvent|touchEvent|PenPressed|PenMoved|PenReleased)\\("
}

FNR == 1 || $1 != file { file = $1; name = "" }

$3 ~ /^[A-Za-z]/ && $3 ~ handler {
  name = $3
  place = $1 ":" $2
  lines = -1  # the line of the opening brace
}

name != "" {
  if ($3 ~ /^}/) {
    if (lines > limit) print place ": " lines " lines in a handler, over " limit
    name = ""
  } else if (lines >= 0 || $3 ~ /[{] *$/) {
    lines++
  }
}
