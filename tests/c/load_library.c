/// @file
/// Loads the library with LoadLibrary and writes a packet, without its header and import library.
/// The exit status is the line of the first call that fails, or 0.

#include <windows.h>

#include <stdint.h>
#include <stdio.h>
#include <string.h>

static HMODULE library;

/// The function of this name, as one with these parameters.
#define CALL(name, parameters)                                                                     \
    ((uint32_t(*) parameters)(void (*)(void))GetProcAddress(library, "zeldata_" name))

#define CHECK(condition)                                                                           \
    do {                                                                                           \
        if (!(condition)) return __LINE__;                                                         \
    } while (0)

static int write(void* header, void* document, const char* path)
{
    int32_t system_error = -1;
    CHECK(CALL("header_set_title", (void*, const char*, size_t))(header, "A title", SIZE_MAX) == 0);
    CHECK(CALL("header_set_video_length", (void*, uint64_t))(header, 90500) == 0);
    CHECK(CALL("header_set_video_width", (void*, uint64_t))(header, 640) == 0);
    CHECK(CALL("header_set_video_height", (void*, uint64_t))(header, 480) == 0);
    CHECK(CALL("document_set_header", (void*, void*))(document, header) == 0);
    CHECK(CALL("document_replace_file", (void*, const char*, size_t, int32_t*, uint32_t))(
              document, path, SIZE_MAX, &system_error, 1) == 0);
    CHECK(system_error == 0);
    return 0;
}

/// Whether the file holds the title.
static int has_title(const char* path)
{
    char packet[20000] = "";
    FILE* file = fopen(path, "rb");
    if (file == NULL) return 0;
    packet[fread(packet, 1, sizeof packet - 1, file)] = '\0';
    fclose(file);
    return strstr(packet, "A title") != NULL;
}

int main(int count, char** arguments)
{
    void* header = NULL;
    void* document = NULL;
    int failed = 0;
    CHECK(count == 2);
    library = LoadLibraryA("libZelInterchangeData.dll");
    CHECK(library != NULL);
    CHECK(CALL("header_create", (void**))(&header) == 0);
    CHECK(CALL("document_create", (void**))(&document) == 0);
    failed = write(header, document, arguments[1]);
    CALL("document_destroy", (void*))(document);
    CALL("header_destroy", (void*))(header);
    CHECK(FreeLibrary(library));
    if (failed != 0) return failed;
    CHECK(has_title(arguments[1]));
    return 0;
}
