# Reads "FILE<tab>LINE<tab>CODE"; prints where two files share `run` equal lines in a row. Blanks do
# not count, nor do includes, braces and the lines that open or close a namespace.

{
  line = $3
  gsub(/[ \t]+/, " ", line)
  sub(/^ /, "", line)
  sub(/ $/, "", line)
  if (line ~ /^#/ || line ~ /^[{}();, ]*$/ || line ~ /^(using )?namespace /) next

  if ($1 != file) { file = $1; held = 0 }
  texts[held % run] = line
  numbers[held % run] = $2
  if (++held < run) next

  key = ""
  for (i = held; i < held + run; i++) key = key texts[i % run] "\n"
  place = file ":" numbers[held % run]
  if (!(key in first)) { first[key] = place; owner[key] = file }
  else if (owner[key] != file && !((owner[key], file) in told)) {
    told[owner[key], file]
    print place ": the same " run " lines as " first[key]
  }
}
