cmake_minimum_required(VERSION 3.25)

# Runs the maker of the built-in table (MAKER) on good and bad data files, made in FOLDER.

function(make text)
  file(WRITE ${FOLDER}/first.txt "I1QAA       JN34AA\n")
  file(WRITE ${FOLDER}/second.txt "${text}")
  file(REMOVE ${FOLDER}/table.cpp)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -D FOLDER=${FOLDER} -D BLOCKS=first,second -D OUT=${FOLDER}/table.cpp
            -P ${MAKER}
    RESULT_VARIABLE result ERROR_VARIABLE error)
  string(REGEX REPLACE "[ \n]+" " " error "${error}")  # a message may be broken anywhere
  set(result ${result} PARENT_SCOPE)
  set(error "${error}" PARENT_SCOPE)
endfunction()

function(expect_refusal text message)
  make("${text}")
  if(result EQUAL 0 OR EXISTS ${FOLDER}/table.cpp OR NOT error MATCHES "${message}")
    message(SEND_ERROR "not refused with '${message}': ${text}\n${error}")
  endif()
endfunction()

function(expect_literals text literals)
  make("${text}")
  if(NOT result EQUAL 0)
    message(SEND_ERROR "refused: ${text}\n${error}")
    return()
  endif()
  file(READ ${FOLDER}/table.cpp made)
  string(FIND "${made}" "{\"second\",\n${literals}    }," found)
  if(found EQUAL -1)
    message(SEND_ERROR "'${text}' did not become '${literals}' in\n${made}")
  endif()
endfunction()

set(good "IK2QAA      JN45AA")
string(ASCII 200 accent)

expect_literals("${good}\n" "    \"${good}\\n\"\n")
expect_literals("${good}\r\nIK2QAB*     J\r\n" "    \"${good}\\n\"\n    \"IK2QAB*     J\\n\"\n")
expect_literals("IK2QAB\"\\    JN??/;\n" "    \"IK2QAB\\\"\\\\    JN\\?\\?/;\\n\"\n")

expect_refusal("${good}\nIK2QAB      \n" "second.txt:2: a row of 12 columns")
expect_refusal("${good}\n\n${good}\n" "second.txt:2: a row of 0 columns")
expect_refusal("${good}B\n" "second.txt:1: a row of 19 columns")
expect_refusal("${good}\n${good}\nIK2QA${accent}      JN45AA\n" "second.txt:3: a character")
expect_refusal("IK2QAA\t    JN45AA\n" "second.txt:1: a character")
expect_refusal("${good}\n${good}" "second.txt:2: the last row has no line end")
expect_refusal("" "second.txt has no row")
