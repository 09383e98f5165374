# Turns strings.tsv into the C++ table of the string table's rows.
#   cmake -DTABLE=strings.tsv -DOUTPUT=str-table-rows.cpp -P gen-str-table.cmake
# The file is walked with string(FIND) rather than read as a CMake list, so
# that semicolons and square brackets in a text reach the table unchanged.

set(ROW_COUNT 652)

file(READ "${TABLE}" content)
set(body "")
set(expected 0)
set(line_no 0)
string(LENGTH "${content}" remaining)
while(remaining GREATER 0)
  string(FIND "${content}" "\n" eol)
  if(eol EQUAL -1)
    set(line "${content}")
    set(content "")
  else()
    string(SUBSTRING "${content}" 0 ${eol} line)
    math(EXPR next "${eol} + 1")
    string(SUBSTRING "${content}" ${next} -1 content)
  endif()
  string(LENGTH "${content}" remaining)
  math(EXPR line_no "${line_no} + 1")
  string(REGEX REPLACE "\r$" "" line "${line}")

  if(line STREQUAL "" OR line MATCHES "^#")
    continue()
  endif()

  string(FIND "${line}" "\t" tab1)
  if(tab1 EQUAL -1)
    message(FATAL_ERROR "${TABLE}:${line_no}: expected id, key and text separated by tabs")
  endif()
  string(SUBSTRING "${line}" 0 ${tab1} id)
  math(EXPR rest_at "${tab1} + 1")
  string(SUBSTRING "${line}" ${rest_at} -1 rest)
  string(FIND "${rest}" "\t" tab2)
  if(tab2 EQUAL -1)
    message(FATAL_ERROR "${TABLE}:${line_no}: expected id, key and text separated by tabs")
  endif()
  string(SUBSTRING "${rest}" 0 ${tab2} key)
  math(EXPR text_at "${tab2} + 1")
  string(SUBSTRING "${rest}" ${text_at} -1 text)

  if(NOT id STREQUAL "${expected}")
    message(FATAL_ERROR "${TABLE}:${line_no}: id ${id} where ${expected} was expected")
  endif()
  if(NOT key MATCHES "^[A-Za-z0-9_]+$")
    message(FATAL_ERROR "${TABLE}:${line_no}: bad key '${key}'")
  endif()
  string(FIND "${text}" "\t" tab3)
  if(NOT tab3 EQUAL -1)
    message(FATAL_ERROR "${TABLE}:${line_no}: a text may not hold a tab; write \\t")
  endif()

  # Backslashes first, so that the escapes added for quotes stay single.
  string(REPLACE "\\" "\\\\" text "${text}")
  string(REPLACE "\"" "\\\"" text "${text}")
  string(APPEND body "    {\"${key}\", \"${text}\"},  // ${id}\n")
  math(EXPR expected "${expected} + 1")
endwhile()

if(NOT expected EQUAL ROW_COUNT)
  message(FATAL_ERROR "${TABLE}: ${expected} rows where ${ROW_COUNT} were expected")
endif()

set(source "// Generated from strings.tsv by gen-str-table.cmake: edit the table, not this file.\n")
string(APPEND source "#include \"str-table-rows.h\"\n\n")
string(APPEND source "const char* const kStrTableRows[${ROW_COUNT}][2] = {\n${body}};\n")

# Rewriting an unchanged file would only cost a recompile.
if(EXISTS "${OUTPUT}")
  file(READ "${OUTPUT}" old)
  if(old STREQUAL source)
    return()
  endif()
endif()
file(WRITE "${OUTPUT}" "${source}")
