# Writes what wixl makes the installer of:
# cmake -DVERSION=1.1 -DFOLDER=... -DICON=... -DOUTPUT=....wxs -P installer.cmake
# FOLDER holds the files as they are to be installed, ICON the one that the list of programs shows.

# Codes are made of names: a version has the same whenever it is packed, and a file that stays has the
# same in every version. The upgrade code never changes, as Windows knows older versions by it.
set(UPGRADE_CODE 5A7ECBE7-F143-45D3-9AE4-C11C525160EB)
function(make_code result name)
  string(UUID code NAMESPACE ${UPGRADE_CODE} NAME ${name} TYPE SHA1 UPPER)
  set(${result} ${code} PARENT_SCOPE)
endfunction()

# Wixl looks for files below the current folder only.
function(make_relative result path)
  file(RELATIVE_PATH relative ${CMAKE_CURRENT_SOURCE_DIR} ${path})
  set(${result} ${relative} PARENT_SCOPE)
endfunction()

# The components of a folder's files and of those below it go to FILES, one a file.
function(describe folder indent)
  file(GLOB entries RELATIVE ${FOLDER} ${FOLDER}/${folder}*)
  foreach(path ${entries})
    get_filename_component(name ${path} NAME)
    string(MAKE_C_IDENTIFIER ${path} id)
    if(IS_DIRECTORY ${FOLDER}/${path})
      string(APPEND FILES "${indent}<Directory Id=\"D.${id}\" Name=\"${name}\">\n")
      describe(${path}/ "${indent}  ")
      string(APPEND FILES "${indent}</Directory>\n")
    else()
      make_code(code file:${path})
      make_relative(source ${FOLDER}/${path})
      file(SHA256 ${FOLDER}/${path} hash)
      string(APPEND FILES "${indent}<Component Id=\"C.${id}\" Guid=\"${code}\" Win64=\"yes\">\n"
        "${indent}  <File Id=\"F.${id}\" Source=\"${source}\" Name=\"${name}\" KeyPath=\"yes\"/>\n"
        "${indent}</Component>\n")
      string(APPEND REFERENCES "      <ComponentRef Id=\"C.${id}\"/>\n")
      string(APPEND CONTENTS "${path} ${hash}\n")
    endif()
  endforeach()
  foreach(result FILES REFERENCES CONTENTS)
    set(${result} "${${result}}" PARENT_SCOPE)
  endforeach()
endfunction()

describe("" "          ")
foreach(text FILES REFERENCES)
  string(STRIP "${${text}}" ${text})
endforeach()
make_relative(ICON ${ICON})
make_code(PRODUCT_CODE version:${VERSION})
make_code(REGISTERED_CODE registered)
make_code(PACKAGE_CODE "${VERSION}\n${CONTENTS}")  # two installers with one code hold the same
configure_file(${CMAKE_CURRENT_LIST_DIR}/tidemark.wxs.in ${OUTPUT} @ONLY)
