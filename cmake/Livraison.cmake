# What is shipped beside the executable: in the build tree under "partage", after installation under "share/bulleo".
include(GNUInstallDirs)
set(BULLEO_PARTAGE ${CMAKE_BINARY_DIR}/partage)
add_custom_target(partage ALL)

# Copies the files of a folder of data/ and of its folders into the shipped folder, again when one of them changes.
# The scripts by which some were made stay behind.
function(livrer_dossier source destination)
    set(racine ${CMAKE_CURRENT_SOURCE_DIR}/${source})
    file(GLOB_RECURSE fichiers CONFIGURE_DEPENDS ${racine}/*)
    list(FILTER fichiers EXCLUDE REGEX "\\.sh$")
    foreach(fichier IN LISTS fichiers)
        file(RELATIVE_PATH nom ${racine} ${fichier})
        set(copie ${BULLEO_PARTAGE}/${destination}/${nom})
        add_custom_command(OUTPUT ${copie} DEPENDS ${fichier} VERBATIM
            COMMAND ${CMAKE_COMMAND} -E copy ${fichier} ${copie})
        list(APPEND copies ${copie})
    endforeach()
    string(MAKE_C_IDENTIFIER "partage_${destination}" cible)
    add_custom_target(${cible} DEPENDS ${copies}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${BULLEO_PARTAGE}/${destination})
    add_dependencies(partage ${cible})
    install(DIRECTORY ${BULLEO_PARTAGE}/${destination} DESTINATION ${CMAKE_INSTALL_DATADIR}/bulleo)
endfunction()
