# Installs into an empty prefix and looks at what has come: every file that a package needs, and pictures
# of the size that their folder promises (a desktop shows a wrong one blurred, without a word).

file(REMOVE_RECURSE ${prefixe})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${construction} --prefix ${prefixe}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

foreach(fichier IN LISTS attendus)
    if(NOT EXISTS ${prefixe}/${fichier})
        message(SEND_ERROR "not installed: ${fichier}")
        continue()
    endif()
    if(fichier MATCHES "/([0-9]+)x[0-9]+/apps/.*\\.png$")
        # Width and height of a PNG stand big-endian at bytes 16 and 20.
        file(READ ${prefixe}/${fichier} taille OFFSET 16 LIMIT 8 HEX)
        math(EXPR attendu "${CMAKE_MATCH_1} * (1 << 32) + ${CMAKE_MATCH_1}")
        math(EXPR lu "0x${taille}")
        if(NOT lu EQUAL attendu)
            message(SEND_ERROR "wrong size: ${fichier}")
        endif()
    endif()
endforeach()
