# Makes of the header that widl writes one that every compiler takes: the platform's own header in the place of
# the declarations for widl, and no default texts, which are no BSTR. Called with -DHEADER.
file(READ ${HEADER} header)
string(REPLACE "#include <platform.h>" "#include <oaidl.h>" header "${header}")
string(REGEX REPLACE " = L\"[^\"]*\"" "" header "${header}")
file(WRITE ${HEADER} "${header}")
