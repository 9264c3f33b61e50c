# Reads gcov's annotated sources, several of them for a header, and adds them up. See
# tools/evidence.d/coverage.

BEGIN {
  in_order = "sort -t: -k1,1 -k2,2n | tr '\\001' '\\n'"
  split(wanted_rooms, list, " ")
  for (i in list) is_wanted[list[i]]
  while ((getline entry < explained) > 0) {
    # file, or * for any | a piece of the line | why the branch is never taken
    if (entry !~ /^#/ && split(entry, part, " \\| ") == 3) {
      reason[part[1], part[2]] = part[3]
      idle[part[1] " | " part[2]] = part[1]
    }
  }
}

/^ *-: *0:Source:/ {
  file = $0
  sub(/.*Source:/, "", file)
  wanted = sub(/.*\/src\//, "", file)
  room = file
  sub(/\/.*/, "", room)
  wanted = wanted && (room in is_wanted)
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
  branch = clears_away = 0
  # At a lone brace an exception cleans up; there is no code of ours.
  if (text[file, number] ~ /^ *}$/) next
  gsub(/[ *]/, "", count)
  if (count == "-") next
  lines[file, number] = 1
  if (count ~ /^=/) handles[file, number] = 1
  if (count !~ /^[#=]/) reached[file, number] = 1
  next
}

# The blocks that the line consists of, each before its branches. Those that run only while an
# exception passes through are marked: the compiler's clearing away. What a handler does is ours: there
# the whole line runs for an exception only, and is never reached without one. Of an expression over
# several lines some have nothing but such blocks: what else there is stands at its last line.
/^ *[^:]+: *[0-9]+-block/ {
  clears_away = /^ *\$/
  if (clears_away) cleared[file, number] = 1
  else if (number > 0) lived[file, number] = 1
  next
}

/^branch +[0-9]+ / {
  # Where a handler begins, the branch is whether the exception is one of its kind.
  if (/\(throw\)/ || text[file, number] ~ /^ *}( catch \(.*)?$/) next
  branch++
  if (clears_away) next
  key = file SUBSEP number SUBSEP branch
  branches[key] = 1
  if ($0 !~ /never executed/ && $0 !~ /taken 0/) taken[key] = 1
}

function explanation(file, source,   k, part) {
  for (k in reason) {
    split(k, part, SUBSEP)
    if ((part[1] == file || part[1] == "*") && index(source, part[2]) > 0) {
      delete idle[part[1] " | " part[2]]
      return reason[k]
    }
  }
  return ""
}

# A source line without its indentation.
function plain(source) {
  sub(/^ +/, "", source)
  return source
}

function room_of(path) {
  sub(/\/.*/, "", path)
  return path
}

# In the order of files and lines.
function tell(path, at, what, why) {
  printf "%s:%d: %s\001    %s\n", path, at, what, why == "" ? "NOT EXPLAINED" : why | in_order
}

function percent(part, whole) { return whole == 0 ? 100 : 100 * part / whole }

END {
  for (k in lines) {
    if (!(k in reached) && k in cleared && !(k in lived) && !(k in handles)) continue
    split(k, at, SUBSEP)
    of = room_of(at[1])
    total_lines[of]++
    if (k in reached) continue
    why = explanation(at[1], plain(text[k]))
    if (why == "") missed_lines[of]++
    tell(at[1], at[2], "never reached: " plain(text[k]), why)
  }
  for (k in branches) {
    split(k, at, SUBSEP)
    on_line[at[1], at[2]]++
    if (!(k in taken)) missed[at[1], at[2]]++
  }
  for (k in on_line) {
    split(k, at, SUBSEP)
    of = room_of(at[1])
    all_branches[of] += on_line[k]
    if (!(k in missed)) continue
    why = explanation(at[1], plain(text[k]))
    if (why == "") missed_branches[of] += missed[k]
    tell(at[1], at[2], missed[k] " of " on_line[k] " branches never taken: " plain(text[k]), why)
  }
  close(in_order)
  for (k in idle) {
    if (idle[k] == "*" || room_of(idle[k]) in is_wanted) print "coverage.txt explains what is reached: " k
  }
  count = split(wanted_rooms, list, " ")
  for (i = 1; i <= count; i++) {
    of = list[i]
    least = of == "engine" ? 100 : 95
    branch_share = percent(all_branches[of] - missed_branches[of], all_branches[of])
    if (missed_lines[of] > 0 || branch_share < least) short++
    printf "%-10s %5d of %5d lines, %5d of %5d branches (%.1f %%)\n", of,
      total_lines[of] - missed_lines[of], total_lines[of],
      all_branches[of] - missed_branches[of], all_branches[of], branch_share
    sum_lines += total_lines[of]; sum_missed_lines += missed_lines[of]
    sum_branches += all_branches[of]; sum_missed_branches += missed_branches[of]
  }
  printf "coverage: %d of %d lines, %.1f %% of %d branches in %d rooms, what coverage.txt explains left out\n",
    sum_lines - sum_missed_lines, sum_lines, percent(sum_branches - sum_missed_branches, sum_branches), sum_branches, count
  exit short > 0
}
