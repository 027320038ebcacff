cmake_minimum_required(VERSION 3.25)

# Turns the outlines of the map into a C++ source:
#   cmake -D FOLDER=... -D OUT=... -P map_outlines.cmake
# FOLDER holds land.txt, italy.txt and borders.txt. A row of another form than data/map/README.md
# tells stops the build, so that the program can read them without looking back.

set(number "-?[0-9]+")

# Puts the literals of the rows of a file, one a row, into `out`.
function(read_rows path out)
  file(STRINGS ${path} rows)
  set(literals "")
  set(at 0)
  foreach(row IN LISTS rows)
    math(EXPR at "${at} + 1")
    if(NOT row MATCHES "^from ${number} ${number}$" AND
       (at EQUAL 1 OR NOT row MATCHES "^${number} ${number}( ${number} ${number})*$"))
      message(FATAL_ERROR "${path}:${at}: neither \"from\" with a point, nor pairs of steps")
    endif()
    string(APPEND literals "    \"${row}\",\n")
  endforeach()
  if(literals STREQUAL "")
    message(FATAL_ERROR "${path} has no row")
  endif()
  set(${out} "${literals}" PARENT_SCOPE)
endfunction()

string(CONCAT source
  "// Made by map_outlines.cmake; the rows stand in data/map/.\n"
  "#include \"publish/map_outlines.h\"\n\n"
  "namespace velmar {\n\n"
  "namespace {\n\n")
foreach(name Land Italy Borders)
  string(TOLOWER ${name} file)
  read_rows(${FOLDER}/${file}.txt rows)
  string(APPEND source "constexpr std::string_view k${name}[] = {\n${rows}};\n\n")
endforeach()
string(APPEND source
  "}  // namespace\n\n"
  "OutlineRows BuiltInOutlines() {\n"
  "  return {kLand, kItaly, kBorders};\n"
  "}\n\n"
  "}  // namespace velmar\n")
file(WRITE ${OUT} "${source}")
