# Brings the documents of the folder that becomes the package into the form that Debian asks for: the copyright and the
# package's own changelog are added, the licence is the system's, and what grows is compressed. Run by CPack.
set(documents ${CPACK_TEMPORARY_DIRECTORY}/usr/share/doc/orvellecp)
file(REMOVE ${documents}/LICENSE)
file(RENAME ${documents}/CHANGELOG.md ${documents}/changelog)
file(COPY ${ORVELLE_DEBIAN_DOCUMENTS}/copyright DESTINATION ${documents})
configure_file(${ORVELLE_DEBIAN_DOCUMENTS}/changelog ${documents}/changelog.Debian COPYONLY)

file(GLOB pages ${CPACK_TEMPORARY_DIRECTORY}/usr/share/man/man1/*.1)
execute_process(COMMAND gzip -9nf ${pages} ${documents}/changelog ${documents}/changelog.Debian
    COMMAND_ERROR_IS_FATAL ANY)
