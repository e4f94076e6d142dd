# Makes the sample in FOLDER with the program MAKE_SAMPLE and compares it with the one in SOURCE. The
# picture's bytes depend on the fonts and the JPEG library at hand: it is only to be there.
execute_process(
  COMMAND ${MAKE_SAMPLE} ${SOURCE}/golden-gate-coastline.geojson ${FOLDER}
  COMMAND_ERROR_IS_FATAL ANY)
execute_process(
  COMMAND ${CMAKE_COMMAND} -E compare_files ${SOURCE}/golden-gate.TDM ${FOLDER}/golden-gate.TDM
  COMMAND_ERROR_IS_FATAL ANY)
if(NOT EXISTS ${FOLDER}/golden-gate.jpg)
  message(FATAL_ERROR "No picture was made.")
endif()
