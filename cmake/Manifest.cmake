# Writes the manifest with which the DLL is used without registration, from the creatable
# coclasses of the interface description. Called with -DIDL -DVERSION -DPROCESSOR -DOUTPUT.
file(READ ${IDL} idl)
# CMake's lists take square brackets as their own.
string(REPLACE "[" "<" idl "${idl}")
string(REPLACE "]" ">" idl "${idl}")
set(guid "[0-9A-Fa-f]+-[0-9A-Fa-f]+-[0-9A-Fa-f]+-[0-9A-Fa-f]+-[0-9A-Fa-f]+")

string(REGEX MATCH "uuid\\((${guid})\\),[^>]*>[ \r\n]*library QuorvelTemplate" library "${idl}")
set(library_id ${CMAKE_MATCH_1})
string(REGEX MATCH "^([0-9]+\\.[0-9]+)" type_library_version ${VERSION})

# A class that is not creatable has that word between its identifier and its help string, and is left out.
string(REGEX MATCHALL "uuid\\(${guid}\\), helpstring\\(\"[^\"]*\"\\)>[ \r\n]*coclass [A-Za-z0-9]+" coclasses "${idl}")
set(classes "")
foreach(coclass IN LISTS coclasses)
  string(REGEX MATCH "uuid\\((${guid})\\), helpstring\\(\"([^\"]*)\"\\)>[ \r\n]*coclass ([A-Za-z0-9]+)" whole "${coclass}")
  string(APPEND classes
"        <comClass clsid=\"{${CMAKE_MATCH_1}}\" description=\"${CMAKE_MATCH_2}\" threadingModel=\"Apartment\"
                  tlbid=\"{${library_id}}\" progid=\"QuorvelTemplate.${CMAKE_MATCH_3}.1\">
            <progid>QuorvelTemplate.${CMAKE_MATCH_3}</progid>
        </comClass>
")
endforeach()
if(library_id STREQUAL "" OR classes STREQUAL "")
  message(FATAL_ERROR "No library or no classes found in ${IDL}")
endif()

# Another name than the DLL's: the loader looks for an assembly of the DLL's name inside the DLL.
file(WRITE ${OUTPUT}
"<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>
<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">
    <assemblyIdentity type=\"win32\" name=\"QuorvelTemplate.X\" version=\"${VERSION}.0\" processorArchitecture=\"${PROCESSOR}\"/>
    <file name=\"QuorvelTemplate.dll\">
${classes}        <typelib tlbid=\"{${library_id}}\" version=\"${type_library_version}\" helpdir=\"\"/>
    </file>
</assembly>
")
