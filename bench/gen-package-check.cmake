# The package generator is deterministic: the same seed gives the same bytes,
# and another seed gives other bytes (a seed that is ignored would pass the
# first check alone).
#   cmake -DGEN=gen-package -DPACK=spk-pack -DOUT=folder -P gen-package-check.cmake
file(REMOVE_RECURSE ${OUT})
foreach(run a:7 b:7 c:8)
  string(REPLACE ":" ";" run "${run}")
  list(GET run 0 name)
  list(GET run 1 seed)
  execute_process(
    COMMAND ${GEN} --profile small --seed ${seed} --spk-pack ${PACK} --formats zip,tar.gz ${OUT}/${name}
    RESULT_VARIABLE rc OUTPUT_QUIET)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "gen-package failed (${rc}) for seed ${seed}")
  endif()
endforeach()
foreach(format zip tar.gz)
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${OUT}/a/small.${format} ${OUT}/b/small.${format}
                  RESULT_VARIABLE same)
  if(NOT same EQUAL 0)
    message(FATAL_ERROR "the same seed gave different ${format} packages")
  endif()
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${OUT}/a/small.${format} ${OUT}/c/small.${format}
                  RESULT_VARIABLE same)
  if(same EQUAL 0)
    message(FATAL_ERROR "two seeds gave the same ${format} package")
  endif()
endforeach()
file(REMOVE_RECURSE ${OUT})
