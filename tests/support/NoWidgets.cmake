# Fails when PROGRAM loads Qt's Widgets.
execute_process(COMMAND ldd ${PROGRAM} OUTPUT_VARIABLE libraries RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "ldd cannot read ${PROGRAM}")
endif()
if(libraries MATCHES "Qt6Widgets")
  message(FATAL_ERROR "${PROGRAM} loads Widgets")
endif()
