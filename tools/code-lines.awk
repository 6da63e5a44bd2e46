# Prints every line of C++ sources that holds code as "FILE<tab>LINE<tab>CODE", comments taken out.
# Raw strings and line continuations are not followed: no source here hides code in them.

FNR == 1 { inComment = 0 }

{
  code = ""
  inText = 0
  for (i = 1; i <= length($0); i++) {
    two = substr($0, i, 2)
    one = substr($0, i, 1)
    if (inComment) {
      if (two == "*/") { inComment = 0; i++ }
    } else if (inText) {
      code = code one
      if (one == "\\") { i++; code = code substr($0, i, 1) }
      else if (one == quote) inText = 0
    } else if (two == "//") {
      break
    } else if (two == "/*") {
      inComment = 1
      i++
    } else {
      if (one == "\"" || (one == "'" && !(code ~ /[0-9a-fA-F]$/))) { inText = 1; quote = one }
      code = code one
    }
  }
  if (code ~ /[^ \t]/) print FILENAME "\t" FNR "\t" code
}
