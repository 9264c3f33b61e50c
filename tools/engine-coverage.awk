# Reads gcov's annotated sources, several of them for a header, and adds them up. See
# tools/engine-coverage.

BEGIN {
  while ((getline entry < explained) > 0) {
    # file: a piece of the line: why the branch is never taken
    if (entry !~ /^#/ && split(entry, part, " \\| ") == 3) {
      reason[part[1], part[2]] = part[3]
    }
  }
}

/^ *-: *0:Source:/ {
  file = $0
  sub(/.*Source:/, "", file)
  wanted = file ~ /\/src\/engine\//
  sub(/.*\/src\/engine\//, "", file)
  next
}

!wanted { next }

# The source line that the branches below it belong to.
/^ *[^:]+: *[0-9]+:/ {
  match($0, /^ *[^:]+:/)
  count = substr($0, 1, RLENGTH - 1)
  rest = substr($0, RLENGTH + 1)
  match(rest, /^ *[0-9]+:/)
  number = substr(rest, 1, RLENGTH - 1) + 0
  text[file, number] = substr(rest, RLENGTH + 1)
  branch = 0
  # At a lone brace an exception cleans up; there is no code of ours.
  if (text[file, number] ~ /^ *}$/) next
  gsub(/[ *]/, "", count)
  if (count == "-") next
  lines[file, number] = 1
  if (count !~ /^[#=]/) reached[file, number] = 1
  next
}

/^branch +[0-9]+ / {
  if ($0 ~ /\(throw\)/ || text[file, number] ~ /^ *}$/) next
  branch++
  key = file SUBSEP number SUBSEP branch
  branches[key] = 1
  if ($0 !~ /never executed/ && $0 !~ /taken 0/) taken[key] = 1
}

function explanation(file, source,   k, part) {
  for (k in reason) {
    split(k, part, SUBSEP)
    if (part[1] == file && index(source, part[2]) > 0) return reason[k]
  }
  return ""
}

END {
  for (k in lines) {
    total_lines++
    if (k in reached) { reached_lines++; continue }
    split(k, at, SUBSEP)
    print at[1] ":" at[2] ": never reached: " text[k]
  }
  for (k in branches) {
    total_branches++
    split(k, at, SUBSEP)
    on_line[at[1], at[2]]++
    if (k in taken) taken_branches++
    else missed[at[1], at[2]]++
  }
  for (k in missed) {
    split(k, at, SUBSEP)
    source = text[k]
    sub(/^ +/, "", source)
    why = explanation(at[1], source)
    if (why == "") { unexplained++; why = "NOT EXPLAINED" }
    printf "%s:%d: %d of %d branches never taken: %s\n    %s\n",
      at[1], at[2], missed[k], on_line[k], source, why
  }
  printf "lines:    %d of %d (%.1f %%)\n", reached_lines, total_lines, 100 * reached_lines / total_lines
  printf "branches: %d of %d (%.1f %%)\n", taken_branches, total_branches, 100 * taken_branches / total_branches
  exit reached_lines < total_lines || unexplained > 0
}
