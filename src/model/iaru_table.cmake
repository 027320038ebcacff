cmake_minimum_required(VERSION 3.25)

# Turns the data files of the table of calls and locators into a C++ source:
#   cmake -D FOLDER=... -D BLOCKS=archivio2,Archivio3,... -D OUT=... -P iaru_table.cmake
# FOLDER holds a file NAME.txt for each block. A row that is no row of the table stops the build:
# inside the program it would only be a row that is never found.

set(shortest 13)  # a call takes 12 columns, and there is something behind it
set(longest 18)

# Puts the literals of the rows of a file, one a line, into `out`.
function(read_rows path out)
  file(READ ${path} text)  # this leaves the CR of a line end out
  set(literals "")
  set(number 0)
  while(NOT text STREQUAL "")
    math(EXPR number "${number} + 1")
    string(FIND "${text}" "\n" length)
    if(length EQUAL -1)
      message(FATAL_ERROR "${path}:${number}: the last row has no line end")
    endif()
    string(SUBSTRING "${text}" 0 ${length} row)
    math(EXPR next "${length} + 1")
    string(SUBSTRING "${text}" ${next} -1 text)
    check_row("${path}:${number}" "${row}")
    # "?" as well: two of them might begin a trigraph.
    string(REGEX REPLACE "([\\\"?])" "\\\\\\1" row "${row}")
    string(APPEND literals "    \"${row}\\n\"\n")
  endwhile()
  if(literals STREQUAL "")
    message(FATAL_ERROR "${path} has no row")
  endif()
  set(${out} "${literals}" PARENT_SCOPE)
endfunction()

function(check_row where row)
  string(LENGTH "${row}" length)
  if(length LESS shortest OR length GREATER longest)
    message(FATAL_ERROR
      "${where}: a row of ${length} columns; a row has ${shortest} to ${longest} of them, the call "
      "in columns 1 to 12 and the locator in 13 to 18")
  endif()
  string(REGEX MATCH "^[ -~]+" plain "${row}")
  if(NOT plain STREQUAL row)
    message(FATAL_ERROR "${where}: a character that is not plain ASCII")
  endif()
endfunction()

string(REPLACE "," ";" blocks "${BLOCKS}")
string(CONCAT source
  "// Made by iaru_table.cmake; the rows stand in data/iaru_table/.\n"
  "#include \"model/iaru_table.h\"\n\n"
  "namespace velmar {\n\n"
  "namespace {\n\n"
  "constexpr IaruBlock kBlocks[] = {\n")
foreach(block ${blocks})
  read_rows(${FOLDER}/${block}.txt rows)
  string(APPEND source "    {\"${block}\",\n${rows}    },\n")
endforeach()
string(APPEND source
  "};\n\n"
  "}  // namespace\n\n"
  "std::span<const IaruBlock> IaruBlocks() {\n"
  "  return kBlocks;\n"
  "}\n\n"
  "}  // namespace velmar\n")
file(WRITE ${OUT} "${source}")
