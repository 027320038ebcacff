# Plays the demo: it has to tell its story, and to end well.
#   cmake -D DEMO=... -D FOLDER=... -P demo_plays_to_its_end.cmake

execute_process(COMMAND ${DEMO} ${FOLDER} RESULT_VARIABLE status OUTPUT_VARIABLE told)
message("${told}")
if(NOT status EQUAL 0)
  message(FATAL_ERROR "the demo ended with ${status}")
endif()
string(JOIN ".*" story
  "The first classification" "The checked classification" "The error list of" "FINAL SCORE"
  "busted_call +7 of 7 proposed" "missing_qso +7 of 7 proposed" "classifiche Velmar per call area"
  "Il proprietario del DX" "Log totali     55" "Squares collegati = [1-9]" "QSOs, [1-9][0-9]* km"
  "Procedura terminata correttamente" "55 filed logs")
if(NOT told MATCHES "${story}")
  message(FATAL_ERROR "the story lacks a part of: ${story}")
endif()
file(READ ${FOLDER}/mappa.png head LIMIT 8 HEX)
if(NOT head STREQUAL "89504e470d0a1a0a")
  message(FATAL_ERROR "the map is no PNG")
endif()
