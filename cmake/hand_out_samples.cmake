# SPDX-License-Identifier: MIT
# Copies the sample crosswords into the program's folder. A crossword file is puzzle and saved game
# in one, so a copy that is neither the sample nor what was handed out holds a game and stays.
file(GLOB parts ${PARTS}/*.qvm)
file(COPY ${parts} DESTINATION ${SAMPLES})
file(GLOB samples ${SAMPLES}/*.qvm ${SAMPLES}/*.qvd)
file(MAKE_DIRECTORY ${PROGRAM_FOLDER} ${HANDED_OUT})

foreach(sample IN LISTS samples)
    get_filename_component(name ${sample} NAME)
    set(copy ${PROGRAM_FOLDER}/${name})
    set(original ${HANDED_OUT}/${name})

    set(copy_hash "")
    set(original_hash "")
    if(EXISTS ${copy})
        file(SHA256 ${copy} copy_hash)
    endif()
    if(EXISTS ${original})
        file(SHA256 ${original} original_hash)
    endif()
    file(SHA256 ${sample} sample_hash)

    if(copy_hash AND NOT copy_hash STREQUAL sample_hash AND NOT copy_hash STREQUAL original_hash)
        if(NOT sample_hash STREQUAL original_hash)
            message(STATUS "${name} has changed, but ${copy} holds a saved game and stays")
        endif()
    else()
        file(COPY_FILE ${sample} ${copy} ONLY_IF_DIFFERENT)
        file(COPY_FILE ${sample} ${original} ONLY_IF_DIFFERENT)
    endif()
endforeach()
