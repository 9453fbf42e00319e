"""Every operation that a script can name, with the kinds of its arguments.

By value: s text, v list of texts, u unsigned long, q long long, o unsigned long long, l long,
b bool, f float, t format, a alignment. Capital letters: by reference, with the value before the
call; I is an int. c:X and m:X: an object of X that is read or changed. p:X: an out-pointer.
i:X: a vector of item pointers. D: pointer to a time. k: a kind of file.

To write the C++ file with which the driver knows the operations of objects, call it with a path.
"""

import sys
from pathlib import Path

# The class to which the operations of each family belong.
CLASSES = {
    "L": "i_ZelDataLanguage",
    "H": "i_ZelDataHeader",
    "CI": "i_ZelDataCaptionItem",
    "C": "i_ZelDataCaptions",
    "TI": "i_ZelDataTocItem",
    "T": "i_ZelDataToc",
    "SI": "i_ZelDataScreenTextItem",
    "S": "i_ZelDataScreenText",
    "B": "i_ZelDataFormatterBase",
    "HF": "i_ZelDataHeaderFormatter",
    "CF": "i_ZelDataCaptionFormatter",
    "TF": "i_ZelDataTocFormatter",
    "SF": "i_ZelDataScreenTextFormatter",
    "D": "i_ZelInterchangeDataCore",
    "ZCI": "ZelDataCaptionItem",
    "ZTI": "ZelDataTocItem",
    "ZSI": "ZelDataScreenTextItem",
    "ZC": "ZelDataCaptions",
    "ZT": "ZelDataToc",
    "ZS": "ZelDataScreenText",
}


def table(text):
    """One operation a line: its name, then its arguments."""
    rows = [line.split() for line in text.strip().splitlines()]
    return {row[0]: row[1:] for row in rows}


SIGNATURES = {
    "L": table(
        """
        clearLanguages
        addLanguage s
        removeLanguage s
        setOrderedLanguageIDs v
        getOrderedLanguageIDs V
        getLanguageCount U
        getLanguageDisplayNames V
        getLanguageNativeDisplayNames V
        doesLanguageExist S B
        copyFromLanguage c:L
        """
    ),
    "H": table(
        """
        isValid
        clearHeader
        setAppName s
        setAppVersion s
        setTitle s
        setCreator s
        setDescription s
        setKeywords v
        setIPodExplicit b
        setVideoLength u
        setVideoWidth u
        setVideoHeight u
        getAppName S
        getAppVersion S
        getTitle S
        getCreator S
        getDescription S
        getKeywords V
        getIPodExplicit B
        getVideoLength U
        getVideoWidth U
        getVideoHeight U
        clearContentNames
        addContentName s
        removeContentName s
        getContentNameCount U
        getContentNames V
        doesContentNameExist S B
        setShowSearchBar b
        getShowSearchBar B
        copyFrom c:H
        """
    ),
    "CI": table(
        """
        isValid b
        clearText
        setTextForLanguage s s
        setStart q
        setEnd q
        setDuration q
        setAlignment a
        removeTextForLanguage s
        getLanguageIDs V
        getTextForLanguage S s
        getStart Q
        getEnd Q
        getDuration Q
        getAlignment A
        copyFrom c:CI
        """
    ),
    "C": table(
        """
        isValid b
        makeCaptionsConsistent
        setFrameRate u
        getFrameRate U
        setFontFamily s
        getFontFamily S
        setFontSize u
        getFontSize U
        setForegroundColor f f f
        getForegroundColor F F F
        setBackgroundColor f f f
        getBackgroundColor F F F
        setBackgroundOpacity f
        getBackgroundOpacity F
        clearCaptionItems
        addCaptionItem c:CI
        createCaptionItem p:CI
        removeCaptionItemAt u
        removeCaptionItemsForLanguage s
        getCaptionItemCount U
        getCaptionItemAt p:CI u
        getCaptionItems i:CI
        getCaptionItemsForLanguage i:CI s
        copyFrom c:C
        """
    ),
    "TI": table(
        """
        isValid b
        clearText
        setTextForLanguage s s
        setStart q
        setImageFile s
        setImageIndex u
        setImageOffset o
        removeTextForLanguage s
        getLanguageIDs V
        getTextForLanguage S s
        getStart Q
        getImageFile S
        getImageIndex U
        getImageOffset O
        copyFrom c:TI
        """
    ),
    "T": table(
        """
        isValid b
        makeTocConsistent
        setFrameRate u
        getFrameRate U
        setImageFile s
        getImageFile S
        clearTocItems
        addTocItem c:TI
        createTocItem p:TI
        removeTocItemAt u
        removeTocItemsForLanguage s
        getTocItemCount U
        getTocItemAt p:TI u
        getTocItems i:TI
        getTocItemsForLanguage i:TI s
        copyFrom c:T
        """
    ),
    "SI": table(
        """
        isValid b
        clearText
        setText s
        setStart q
        setEnd q
        setDuration q
        setImageFile s
        setImageIndex u
        setImageOffset o
        setGroupId u
        getText S
        getStart Q
        getEnd Q
        getDuration Q
        getImageFile S
        getImageIndex U
        getImageOffset O
        getGroupId U
        copyFrom c:SI
        """
    ),
    "S": table(
        """
        isValid b
        makeScreenTextConsistent
        setFrameRate u
        getFrameRate U
        clearScreenTextItems
        addScreenTextItem c:SI
        createScreenTextItem p:SI
        removeScreenTextItemAt u
        getScreenTextItemCount U
        getScreenTextItemAt p:SI u
        getScreenTextItems i:SI
        copyFrom c:S
        """
    ),
    "B": table(
        """
        writeString S t b
        readString s t b
        writeFile k t b
        readFile s t
        """
    ),
    "HF": table("setHeader c:H\n getHeader m:H"),
    "CF": table("setCaptions c:C\n getCaptions m:C"),
    "TF": table("setToc c:T\n getToc m:T"),
    "SF": table("setScreenText c:S\n getScreenText m:S"),
    "D": table(
        """
        getDataHeader m:H
        setDataHeader c:H
        getDataCaptions m:C
        setDataCaptions c:C
        getDataToc m:T
        setDataToc c:T
        getDataScreenText m:S
        setDataScreenText c:S
        createDataHeader p:H
        createDataCaptions p:C
        createDataToc p:T
        createDataScreenText p:S
        """
    ),
    # Operations of the classes that implement the interfaces.
    "ZCI": table("assign c:ZCI"),
    "ZTI": table("assign c:ZTI"),
    "ZSI": table("assign c:ZSI"),
    "ZC": table("orderCaptions"),
    "ZT": table("orderTocItems"),
    "ZS": table("orderScreenTextItems"),
}

# Static functions; they have no object and no last error.
FUNCTIONS = table(
    """
    createHeaderData p:H
    createCaptionItemData p:CI
    createCaptionData p:C
    createTocItemData p:TI
    createTocData p:T
    createScreenTextItemData p:SI
    createScreenTextData p:S
    createHeaderFormatter p:HF t
    createCaptionFormatter p:CF t
    createTocFormatter p:TF t
    createScreenTextFormatter p:SF t
    englishNameForLanguage s S
    nativeNameForLanguage s S
    isValidLanguage s
    verifyUtf8Format s b
    countLinesInUTF8 s
    stripUnsupportedCharacters s
    htmlTagsToText s
    htmlTagsFromText s
    getVerticalAlignment a
    getHorizontalAlignment a
    floatString f
    longString l
    unsignedLongString u
    unsignedLongLongString o
    getRateString u
    getVersionString u
    getDateString D
    getSafeXmlString s
    replaceAll S s s
    intForISO6391Code s I
    languageInfoISOCode s
    languagefromID s
    """
)

DRIVER_FILE = """\
// Written by signatures.py.

#include "Operations.h"

#include "captions/ZelDataCaptionItem.h"
#include "captions/ZelDataCaptions.h"
#include "screentext/ZelDataScreenText.h"
#include "screentext/ZelDataScreenTextItem.h"
#include "toc/ZelDataToc.h"
#include "toc/ZelDataTocItem.h"

#include "ZelInterchangeData/ZelInterchangeData.h"

void model::addMemberOperations(Operations& operations)
{
    using namespace ZelInterchangeData;
%s}
"""


def driver_lines():
    for family, operations in SIGNATURES.items():
        for name, kinds in operations.items():
            body = "member(&%s::%s)" % (CLASSES[family], name)
            if name == "assign":
                body = "assigning<%s>()" % CLASSES[family]
            if name.startswith("copyFrom"):  # overloaded
                body = "copying<%s>()" % CLASSES[family]
            if "k" in kinds:
                body = "writeFile"
            yield '    operations["%s.%s"] = %s;\n' % (family, name, body)


if __name__ == "__main__":
    Path(sys.argv[1]).write_text(DRIVER_FILE % "".join(driver_lines()), encoding="ascii")
