# What CPack's own stripping leaves in.
file(GLOB programs ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/bin/*)
execute_process(COMMAND strip --strip-all --remove-section=.comment --remove-section=.note
                        ${programs} COMMAND_ERROR_IS_FATAL ANY)
