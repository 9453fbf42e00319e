/// @file
/// Calls every function of the C face; a test compares the calls with the list. Prints each
/// expectation that fails; their number is the exit status.

#include "ZelInterchangeData/zeldata.h"

#include <stdio.h>
#include <string.h>

#define T ZELDATA_TERMINATED

static int failures = 0;

static void expect(int holds, const char* what, int line)
{
    if (holds) return;
    printf("line %d: %s\n", line, what);
    ++failures;
}

#define EXPECT(condition) expect((condition) ? 1 : 0, #condition, __LINE__)
#define OK(call) EXPECT((call) == ZELDATA_OK)
#define FAILS(code, call) EXPECT((call) == (code))
#define SAME(text, expected) EXPECT(strcmp((text), (expected)) == 0)

/// Whether the message of the last call names @p call and says what @p code means.
static int says(const void* handle, const char* call, uint32_t code)
{
    char expected[200];
    snprintf(expected, sizeof expected, "%s: %s (0x%08X): %s", call, zeldata_result_to_string(code),
             (unsigned)code, zeldata_result_describe(code));
    return strcmp(zeldata_last_message(handle), expected) == 0;
}

#define SAYS(handle, call, code) EXPECT(says(handle, call, code))

static const char* data(const zeldata_string* string)
{
    return zeldata_string_get_data(string);
}

static zeldata_string* text = NULL;
static zeldata_strings* texts = NULL;
static uint64_t number = 0;
static int64_t time_value = 0;
static int32_t truth = 0;

/// What the handles of all interfaces have in common.
#define COMMON(type, handle)                                                                       \
    do {                                                                                           \
        OK(zeldata_##type##_set_last_error(handle, ZELDATA_NOT_FOUND));                            \
        FAILS(ZELDATA_NOT_FOUND, zeldata_##type##_get_last_error(handle));                         \
        FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_##type##_get_last_error(NULL));                    \
        SAME(zeldata_last_message(handle), "");                                                    \
    } while (0)

/// The list of languages.
#define LANGUAGES(type, handle, absent)                                                            \
    do {                                                                                           \
        OK(zeldata_##type##_clear_languages(handle));                                              \
        OK(zeldata_##type##_add_language(handle, "en-US", 2));                                     \
        OK(zeldata_##type##_add_language(handle, "ja", T));                                        \
        FAILS(ZELDATA_UNKNOWN_LANGUAGE, zeldata_##type##_add_language(handle, "de_AT", T));        \
        SAYS(handle, "addLanguage(\"de_AT\")", ZELDATA_UNKNOWN_LANGUAGE);                          \
        OK(zeldata_##type##_get_language_count(handle, &number));                                  \
        EXPECT(number == 2);                                                                       \
        SAME(zeldata_last_message(handle), "");                                                    \
        OK(zeldata_##type##_get_ordered_language_ids(handle, texts));                              \
        OK(zeldata_strings_get(texts, 0, text));                                                   \
        SAME(data(text), "en");                                                                    \
        OK(zeldata_##type##_get_language_display_names(handle, texts));                            \
        OK(zeldata_strings_get(texts, 1, text));                                                   \
        SAME(data(text), "Japanese");                                                              \
        OK(zeldata_##type##_get_language_native_display_names(handle, texts));                     \
        OK(zeldata_strings_get(texts, 0, text));                                                   \
        SAME(data(text), "English");                                                               \
        OK(zeldata_strings_clear(texts));                                                          \
        OK(zeldata_strings_add(texts, "ja", T));                                                   \
        OK(zeldata_strings_add(texts, "en", T));                                                   \
        OK(zeldata_##type##_set_ordered_language_ids(handle, texts));                              \
        OK(zeldata_##type##_does_language_exist(handle, "ja", T, &truth));                         \
        EXPECT(truth == 1);                                                                        \
        OK(zeldata_##type##_remove_language(handle, "ja", T));                                     \
        OK(zeldata_##type##_does_language_exist(handle, "ja", T, &truth));                         \
        EXPECT(truth == 0);                                                                        \
        FAILS(absent, zeldata_##type##_remove_language(handle, "ja", T));                          \
    } while (0)

static void call_texts(void)
{
    char buffer[6] = "before";
    size_t needed = 0;
    OK(zeldata_string_create(&text));
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_string_create(&text));
    SAME(data(text), "");
    SAME(data(NULL), "");
    OK(zeldata_string_set(text, "a\0bcd", 5));
    EXPECT(zeldata_string_get_size(text) == 5 && memcmp(data(text), "a\0bcd", 6) == 0);
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_string_copy(text, buffer, 5, &needed));
    EXPECT(needed == 6 && memcmp(buffer, "before", 6) == 0);
    needed = 0;
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_string_copy(text, NULL, 0, &needed));
    EXPECT(needed == 6);
    OK(zeldata_string_copy(text, buffer, sizeof buffer, &needed));
    EXPECT(memcmp(buffer, "a\0bcd", 6) == 0);

    OK(zeldata_strings_create(&texts));
    OK(zeldata_strings_add(texts, "one", T));
    OK(zeldata_strings_get_count(texts, &number));
    EXPECT(number == 1);
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_strings_get(texts, 1, text));
    SAME(zeldata_last_message(texts),
         "get(1): ZelData_InvalidArgument (0x80000003): A value is out "
         "of range, missing, or not there to be read.");
}

static void call_results(void)
{
    SAME(zeldata_result_to_string(ZELDATA_INVALID_UTF8), "ZelData_InvalidUtf8");
    SAME(zeldata_result_describe(ZELDATA_OUT_OF_MEMORY), "Memory ran out.");
    EXPECT(zeldata_result_failed(ZELDATA_WARN_TIMING) == 1 &&
           zeldata_result_failed(ZELDATA_OK) == 0);
    EXPECT(zeldata_result_is_error(ZELDATA_WARN_TIMING) == 0);
    EXPECT(zeldata_result_is_error(ZELDATA_NOT_FOUND) == 1);
    EXPECT(zeldata_library_version() == ZELINTERCHANGEDATA_VERSION);
    SAME(zeldata_last_message(NULL), zeldata_result_describe(ZELDATA_INVALID_ARGUMENT));
}

static void call_helpers(void)
{
    OK(zeldata_english_name_for_language("pt-BR", T, text));
    SAME(data(text), "Portuguese");
    OK(zeldata_native_name_for_language("de", T, text));
    SAME(data(text), "Deutsch");
    OK(zeldata_is_valid_language("ja", T));
    FAILS(ZELDATA_UNKNOWN_LANGUAGE, zeldata_is_valid_language("xx", T));
    OK(zeldata_verify_utf8_format("\xF0\x9F\x8D\xB5", T, 0));
    FAILS(ZELDATA_UNSUPPORTED_CHARACTER, zeldata_verify_utf8_format("\xF0\x9F\x8D\xB5", T, 7));
    OK(zeldata_count_lines_in_utf8("one\ntwo", T, &number));
    EXPECT(number == 2);
    OK(zeldata_strip_unsupported_characters("a\tb\nc", T, text));
    SAME(data(text), "ab\nc");
    OK(zeldata_html_tags_to_text("a < b", T, text));
    SAME(data(text), "a &lt; b");
    OK(zeldata_html_tags_from_text("a &lt; b", T, text));
    SAME(data(text), "a < b");
    OK(zeldata_get_vertical_alignment(ZELDATA_ALIGN_TOP | ZELDATA_ALIGN_LEFT, text));
    SAME(data(text), "top");
    OK(zeldata_get_horizontal_alignment(ZELDATA_ALIGN_TOP | ZELDATA_ALIGN_LEFT, text));
    SAME(data(text), "left");
    OK(zeldata_get_value_string_float(0.1F, text));
    SAME(data(text), "0.1");
    OK(zeldata_get_value_string_uint64(UINT64_MAX, text));
    SAME(data(text), "18446744073709551615");
    OK(zeldata_get_value_string_int64(-42, text));
    SAME(data(text), "-42");
    OK(zeldata_get_rate_string(1000, text));
    SAME(data(text), "f1000");
    OK(zeldata_get_version_string(66048, text));
    SAME(data(text), "1.2.0");
    OK(zeldata_get_date_string(86400, text));
    EXPECT(strncmp(data(text), "1970-01-02T00:00:00", 19) == 0);
    OK(zeldata_get_date_string_now(text));
    EXPECT(strncmp(data(text), "20", 2) == 0);
}

static zeldata_header* call_header(void)
{
    zeldata_header* header = NULL;
    OK(zeldata_header_create(&header));
    COMMON(header, header);
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_header_is_valid(header));
    SAYS(header, "isValid", ZELDATA_INVALID_ARGUMENT);
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_header_set_video_length(header, 0));
    SAYS(header, "setVideoLength(0)", ZELDATA_INVALID_ARGUMENT);
    OK(zeldata_header_clear(header));
    OK(zeldata_header_set_app_name(header, "Recorder", T));
    OK(zeldata_header_get_app_name(header, text));
    SAME(data(text), "Recorder");
    OK(zeldata_header_set_app_version(header, "2.0", T));
    OK(zeldata_header_get_app_version(header, text));
    SAME(data(text), "2.0");
    OK(zeldata_header_set_title(header, "Title, not this", 5));
    OK(zeldata_header_get_title(header, text));
    SAME(data(text), "Title");
    OK(zeldata_header_set_creator(header, "Ann", T));
    OK(zeldata_header_get_creator(header, text));
    SAME(data(text), "Ann");
    OK(zeldata_header_set_description(header, "About", T));
    OK(zeldata_header_get_description(header, text));
    SAME(data(text), "About");
    OK(zeldata_strings_clear(texts));
    OK(zeldata_strings_add(texts, "key", T));
    OK(zeldata_header_set_keywords(header, texts));
    OK(zeldata_strings_clear(texts));
    OK(zeldata_header_get_keywords(header, texts));
    OK(zeldata_strings_get(texts, 0, text));
    SAME(data(text), "key");
    OK(zeldata_header_set_ipod_explicit(header, 5));
    OK(zeldata_header_get_ipod_explicit(header, &truth));
    EXPECT(truth == 1);
    FAILS(sizeof(long) == 4 ? ZELDATA_INVALID_ARGUMENT : ZELDATA_OK,
          zeldata_header_set_video_length(header, UINT64_C(4294967296)));
    OK(zeldata_header_set_video_length(header, 90500));
    OK(zeldata_header_get_video_length(header, &number));
    EXPECT(number == 90500);
    OK(zeldata_header_set_video_width(header, 640));
    OK(zeldata_header_get_video_width(header, &number));
    EXPECT(number == 640);
    OK(zeldata_header_set_video_height(header, 480));
    OK(zeldata_header_get_video_height(header, &number));
    EXPECT(number == 480);
    OK(zeldata_header_clear_content_names(header));
    OK(zeldata_header_add_content_name(header, "intro.mp4", T));
    FAILS(ZELDATA_WARN_NO_CHANGE, zeldata_header_add_content_name(header, "intro.mp4", T));
    OK(zeldata_header_get_content_name_count(header, &number));
    EXPECT(number == 1);
    OK(zeldata_header_get_content_names(header, texts));
    OK(zeldata_strings_get(texts, 0, text));
    SAME(data(text), "intro.mp4");
    OK(zeldata_header_does_content_name_exist(header, "intro.mp4", T, &truth));
    EXPECT(truth == 1);
    OK(zeldata_header_remove_content_name(header, "intro.mp4", T));
    OK(zeldata_header_set_show_search_bar(header, 0));
    OK(zeldata_header_get_show_search_bar(header, &truth));
    EXPECT(truth == 0);
    LANGUAGES(header, header, ZELDATA_WARN_NO_CHANGE);
    FAILS(ZELDATA_INTERNAL_ERROR, zeldata_header_copy_from(header, header));
    SAYS(header, "copyFrom", ZELDATA_INTERNAL_ERROR);
    return header;
}

static void call_caption_item(zeldata_caption_item* item)
{
    uint32_t alignment = 0;
    COMMON(caption_item, item);
    OK(zeldata_caption_item_set_start(item, 1000));
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_caption_item_set_end(item, 500));
    SAYS(item, "setEnd(500)", ZELDATA_INVALID_ARGUMENT);
    OK(zeldata_caption_item_set_end(item, 1400));
    FAILS(ZELDATA_WARN_ITEM_GUIDELINES, zeldata_caption_item_is_valid(item, 1));
    OK(zeldata_caption_item_set_duration(item, 2000));
    OK(zeldata_caption_item_get_start(item, &time_value));
    EXPECT(time_value == 1000);
    OK(zeldata_caption_item_get_end(item, &time_value));
    EXPECT(time_value == 3000);
    OK(zeldata_caption_item_get_duration(item, &time_value));
    EXPECT(time_value == 2000);
    OK(zeldata_caption_item_set_alignment(item, ZELDATA_ALIGN_TOP | ZELDATA_ALIGN_RIGHT));
    OK(zeldata_caption_item_get_alignment(item, &alignment));
    EXPECT(alignment == (ZELDATA_ALIGN_TOP | ZELDATA_ALIGN_RIGHT));
    OK(zeldata_caption_item_set_text_for_language(item, "Hallo", T, "de", T));
    FAILS(ZELDATA_WARN_ALREADY_EXISTS,
          zeldata_caption_item_set_text_for_language(item, "Servus", T, "de", T));
    SAYS(item, "setTextForLanguage(\"Servus\", \"de\")", ZELDATA_WARN_ALREADY_EXISTS);
    OK(zeldata_caption_item_get_text_for_language(item, text, "de", T));
    SAME(data(text), "Servus");
    OK(zeldata_caption_item_get_language_ids(item, texts));
    OK(zeldata_strings_get_count(texts, &number));
    EXPECT(number == 1);
    FAILS(ZELDATA_NOT_FOUND, zeldata_caption_item_remove_text_for_language(item, "fr", T));
    SAYS(item, "removeTextForLanguage(\"fr\")", ZELDATA_NOT_FOUND);
    OK(zeldata_caption_item_clear_text(item));
    OK(zeldata_caption_item_set_text_for_language(item, "Hello", T, "en", T));
}

static zeldata_captions* call_captions(void)
{
    zeldata_captions* captions = NULL;
    zeldata_caption_item* item = NULL;
    zeldata_caption_item* copy = NULL;
    float red = 2, green = 2, blue = 2;
    OK(zeldata_captions_create(&captions));
    COMMON(captions, captions);
    OK(zeldata_captions_set_frame_rate(captions, 25));
    OK(zeldata_captions_get_frame_rate(captions, &number));
    EXPECT(number == 25);
    OK(zeldata_captions_set_font_family(captions, "Courier", T));
    OK(zeldata_captions_get_font_family(captions, text));
    SAME(data(text), "Courier");
    OK(zeldata_captions_set_font_size(captions, 24));
    OK(zeldata_captions_get_font_size(captions, &number));
    EXPECT(number == 24);
    OK(zeldata_captions_set_foreground_color(captions, 1.0F, 0.5F, 0.25F));
    OK(zeldata_captions_get_foreground_color(captions, &red, &green, &blue));
    EXPECT(red == 1.0F && green == 0.5F && blue == 0.25F);
    FAILS(ZELDATA_INVALID_ARGUMENT,
          zeldata_captions_set_background_color(captions, 0.0F, 1.5F, 0.0F));
    OK(zeldata_captions_set_background_color(captions, 0.0F, 0.75F, 1.0F));
    OK(zeldata_captions_get_background_color(captions, &red, &green, &blue));
    EXPECT(red == 0.0F && green == 0.75F && blue == 1.0F);
    OK(zeldata_captions_set_background_opacity(captions, 0.5F));
    OK(zeldata_captions_get_background_opacity(captions, &red));
    EXPECT(red == 0.5F);

    OK(zeldata_captions_create_item(captions, &item));
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_captions_create_item(captions, &item));
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_captions_get_last_error(captions));
    call_caption_item(item);
    OK(zeldata_caption_item_create(&copy));
    OK(zeldata_caption_item_copy_from(copy, item));
    zeldata_caption_item_destroy(copy);
    copy = NULL;
    OK(zeldata_captions_add_item(captions, item));
    OK(zeldata_captions_add_item(captions, item));
    FAILS(ZELDATA_WARN_TIMING, zeldata_captions_is_valid(captions, 1));
    OK(zeldata_captions_remove_item(captions, 1));
    OK(zeldata_captions_get_item_count(captions, &number));
    EXPECT(number == 1);
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_captions_get_item(captions, &copy, 1));
    SAYS(captions, "getCaptionItemAt(1)", ZELDATA_INVALID_ARGUMENT);
    OK(zeldata_captions_get_item(captions, &copy, 0));
    OK(zeldata_caption_item_get_start(copy, &time_value));
    EXPECT(time_value == 1000);
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_captions_get_item(captions, &copy, 0));
    zeldata_caption_item_destroy(copy);
    OK(zeldata_captions_make_consistent(captions));
    OK(zeldata_captions_remove_items_for_language(captions, "en", T));
    OK(zeldata_captions_clear_items(captions));
    LANGUAGES(captions, captions, ZELDATA_NOT_FOUND);
    OK(zeldata_captions_clear_languages(captions));
    OK(zeldata_captions_add_item(captions, item));
    zeldata_caption_item_destroy(item);
    FAILS(ZELDATA_INTERNAL_ERROR, zeldata_captions_copy_from(captions, captions));
    return captions;
}

static void call_toc_item(zeldata_toc_item* item)
{
    COMMON(toc_item, item);
    OK(zeldata_toc_item_is_valid(item, 1));
    OK(zeldata_toc_item_set_start(item, 5000));
    OK(zeldata_toc_item_get_start(item, &time_value));
    EXPECT(time_value == 5000);
    OK(zeldata_toc_item_set_image_file(item, "thumbs.png", T));
    OK(zeldata_toc_item_get_image_file(item, text));
    SAME(data(text), "thumbs.png");
    OK(zeldata_toc_item_set_image_index(item, 3));
    OK(zeldata_toc_item_get_image_index(item, &number));
    EXPECT(number == 3);
    OK(zeldata_toc_item_set_image_offset(item, UINT64_MAX));
    OK(zeldata_toc_item_get_image_offset(item, &number));
    EXPECT(number == UINT64_MAX);
    OK(zeldata_toc_item_set_text_for_language(item, "Boil", T, "en", T));
    OK(zeldata_toc_item_get_text_for_language(item, text, "en", T));
    SAME(data(text), "Boil");
    OK(zeldata_toc_item_get_language_ids(item, texts));
    OK(zeldata_toc_item_remove_text_for_language(item, "en", T));
    OK(zeldata_toc_item_clear_text(item));
    OK(zeldata_toc_item_set_text_for_language(item, "Boil", T, "en", T));
}

static zeldata_toc* call_toc(void)
{
    zeldata_toc* toc = NULL;
    zeldata_toc_item* item = NULL;
    zeldata_toc_item* copy = NULL;
    OK(zeldata_toc_create(&toc));
    COMMON(toc, toc);
    OK(zeldata_toc_set_frame_rate(toc, 30));
    OK(zeldata_toc_get_frame_rate(toc, &number));
    EXPECT(number == 30);
    OK(zeldata_toc_set_image_file(toc, "toc.png", T));
    OK(zeldata_toc_get_image_file(toc, text));
    SAME(data(text), "toc.png");
    OK(zeldata_toc_create_item(toc, &item));
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_toc_create_item(toc, &item));
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_toc_get_last_error(toc));
    call_toc_item(item);
    OK(zeldata_toc_item_create(&copy));
    OK(zeldata_toc_item_copy_from(copy, item));
    zeldata_toc_item_destroy(copy);
    copy = NULL;
    OK(zeldata_toc_add_item(toc, item));
    OK(zeldata_toc_is_valid(toc, 1));
    OK(zeldata_toc_get_item(toc, &copy, 0));
    zeldata_toc_item_destroy(copy);
    OK(zeldata_toc_make_consistent(toc));
    OK(zeldata_toc_remove_items_for_language(toc, "en", T));
    OK(zeldata_toc_remove_item(toc, 0));
    OK(zeldata_toc_get_item_count(toc, &number));
    EXPECT(number == 0);
    OK(zeldata_toc_clear_items(toc));
    LANGUAGES(toc, toc, ZELDATA_NOT_FOUND);
    OK(zeldata_toc_clear_languages(toc));
    OK(zeldata_toc_add_item(toc, item));
    zeldata_toc_item_destroy(item);
    FAILS(ZELDATA_INTERNAL_ERROR, zeldata_toc_copy_from(toc, toc));
    return toc;
}

static void call_screen_text_item(zeldata_screen_text_item* item)
{
    COMMON(screen_text_item, item);
    OK(zeldata_screen_text_item_set_text(item, "Click Save", T));
    OK(zeldata_screen_text_item_get_text(item, text));
    SAME(data(text), "Click Save");
    OK(zeldata_screen_text_item_is_valid(item, 1));
    OK(zeldata_screen_text_item_clear_text(item));
    FAILS(ZELDATA_INVALID_ITEM, zeldata_screen_text_item_set_text(item, "\xFF", T));
    SAYS(item, "setText(\"\\xFF\")", ZELDATA_INVALID_ITEM);
    OK(zeldata_screen_text_item_set_start(item, 2000));
    OK(zeldata_screen_text_item_get_start(item, &time_value));
    EXPECT(time_value == 2000);
    OK(zeldata_screen_text_item_set_end(item, 3500));
    OK(zeldata_screen_text_item_get_end(item, &time_value));
    EXPECT(time_value == 3500);
    OK(zeldata_screen_text_item_set_duration(item, 500));
    OK(zeldata_screen_text_item_get_duration(item, &time_value));
    EXPECT(time_value == 500);
    OK(zeldata_screen_text_item_set_image_file(item, "shots.png", T));
    OK(zeldata_screen_text_item_get_image_file(item, text));
    SAME(data(text), "shots.png");
    OK(zeldata_screen_text_item_set_image_index(item, 3));
    OK(zeldata_screen_text_item_get_image_index(item, &number));
    EXPECT(number == 3);
    OK(zeldata_screen_text_item_set_image_offset(item, 4096));
    OK(zeldata_screen_text_item_get_image_offset(item, &number));
    EXPECT(number == 4096);
    OK(zeldata_screen_text_item_set_group_id(item, 7));
    OK(zeldata_screen_text_item_get_group_id(item, &number));
    EXPECT(number == 7);
}

static zeldata_screen_text* call_screen_text(void)
{
    zeldata_screen_text* texts_on_screen = NULL;
    zeldata_screen_text_item* item = NULL;
    zeldata_screen_text_item* copy = NULL;
    OK(zeldata_screen_text_create(&texts_on_screen));
    COMMON(screen_text, texts_on_screen);
    OK(zeldata_screen_text_set_frame_rate(texts_on_screen, 50));
    OK(zeldata_screen_text_get_frame_rate(texts_on_screen, &number));
    EXPECT(number == 50);
    OK(zeldata_screen_text_create_item(texts_on_screen, &item));
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_screen_text_create_item(texts_on_screen, &item));
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_screen_text_get_last_error(texts_on_screen));
    call_screen_text_item(item);
    OK(zeldata_screen_text_item_create(&copy));
    OK(zeldata_screen_text_item_copy_from(copy, item));
    zeldata_screen_text_item_destroy(copy);
    copy = NULL;
    OK(zeldata_screen_text_add_item(texts_on_screen, item));
    OK(zeldata_screen_text_is_valid(texts_on_screen, 1));
    OK(zeldata_screen_text_make_consistent(texts_on_screen));
    OK(zeldata_screen_text_get_item(texts_on_screen, &copy, 0));
    zeldata_screen_text_item_destroy(copy);
    OK(zeldata_screen_text_remove_item(texts_on_screen, 0));
    OK(zeldata_screen_text_get_item_count(texts_on_screen, &number));
    EXPECT(number == 0);
    OK(zeldata_screen_text_clear_items(texts_on_screen));
    OK(zeldata_screen_text_add_item(texts_on_screen, item));
    zeldata_screen_text_item_destroy(item);
    FAILS(ZELDATA_INTERNAL_ERROR, zeldata_screen_text_copy_from(texts_on_screen, texts_on_screen));
    return texts_on_screen;
}

/// Copies the languages of each source to the target, or fails if that is the target itself.
#define COPY_LANGUAGES(type, target)                                                               \
    do {                                                                                           \
        const uint32_t self = ZELDATA_INTERNAL_ERROR;                                              \
        const int is = (int)sizeof #type;                                                          \
        FAILS(is == sizeof "header" ? self : ZELDATA_OK,                                           \
              zeldata_##type##_copy_languages_from_header(target, header));                        \
        FAILS(is == sizeof "captions" ? self : ZELDATA_OK,                                         \
              zeldata_##type##_copy_languages_from_captions(target, captions));                    \
        FAILS(is == sizeof "toc" ? self : ZELDATA_OK,                                              \
              zeldata_##type##_copy_languages_from_toc(target, toc));                              \
    } while (0)

#define FORMATTER(type, set, source)                                                               \
    do {                                                                                           \
        zeldata_##type##_formatter* formatter = NULL;                                              \
        FAILS(ZELDATA_UNSUPPORTED_FORMAT, zeldata_##type##_formatter_create(&formatter, 2));       \
        OK(zeldata_##type##_formatter_create(&formatter, ZELDATA_FORMAT_XMP));                     \
        COMMON(type##_formatter, formatter);                                                       \
        FAILS(ZELDATA_INVALID_DATA,                                                                \
              zeldata_##type##_formatter_write_string(formatter, text, ZELDATA_FORMAT_XMP, 0));    \
        EXPECT(strncmp(zeldata_last_message(formatter), "writeString: ", 13) == 0);                \
        OK(zeldata_##type##_formatter_##set(formatter, source));                                   \
        OK(zeldata_string_set(text, "", 0));                                                       \
        OK(zeldata_##type##_formatter_write_string(formatter, text, ZELDATA_FORMAT_XMP, 0));       \
        EXPECT(zeldata_string_get_size(text) > 100);                                               \
        zeldata_##type##_formatter_destroy(formatter);                                             \
    } while (0)

static void call_findings(const zeldata_captions* captions)
{
    zeldata_findings* findings = NULL;
    zeldata_captions* bad = NULL;
    uint32_t tag = 0;
    float component = 1;
    OK(zeldata_findings_create(&findings));
    OK(zeldata_captions_create(&bad));
    OK(zeldata_captions_copy_from(bad, captions));
    OK(zeldata_captions_add_language(bad, "fr", T));
    OK(zeldata_captions_find_problems(bad, findings));
    OK(zeldata_findings_get_count(findings, &number));
    EXPECT(number == 1);
    OK(zeldata_findings_get_kind(findings, 0, &tag));
    EXPECT(tag == ZELDATA_FINDING_MISSING_TEXT);
    SAME(zeldata_finding_to_string(tag), "ZelDataFinding_MissingText");
    OK(zeldata_findings_get_subject(findings, 0, &tag));
    EXPECT(tag == ZELDATA_FINDING_SUBJECT_CAPTION);
    OK(zeldata_findings_get_item_index(findings, 0, &number));
    EXPECT(number == 0);
    OK(zeldata_findings_get_start(findings, 0, &time_value));
    EXPECT(time_value == 1000);
    OK(zeldata_findings_get_language(findings, 0, text));
    SAME(data(text), "fr");
    OK(zeldata_findings_get_property(findings, 0, text));
    SAME(data(text), "");
    OK(zeldata_findings_get_component(findings, 0, &component));
    EXPECT(component == 0);
    OK(zeldata_findings_get_value(findings, 0, &time_value));
    EXPECT(time_value == 0);
    OK(zeldata_findings_get_limit(findings, 0, &time_value));
    EXPECT(time_value == 0);
    OK(zeldata_findings_get_later_item_index(findings, 0, &number));
    EXPECT(number == ZELDATA_NO_ITEM);
    OK(zeldata_findings_get_later_start(findings, 0, &time_value));
    EXPECT(time_value == 0);
    OK(zeldata_findings_get_severity(findings, 0, &tag));
    EXPECT(tag == ZELDATA_FINDING_SEVERITY_WARNING);
    OK(zeldata_findings_get_code(findings, 0, &tag));
    EXPECT(tag == ZELDATA_INVALID_ARGUMENT);
    OK(zeldata_findings_describe(findings, 0, text));
    SAME(data(text), "caption 0 at 1000 ms: no text in fr");
    FAILS(ZELDATA_INVALID_ARGUMENT, zeldata_findings_describe(findings, 1, text));
    zeldata_captions_destroy(bad);
    zeldata_findings_destroy(findings);
}

static void call_document(const char* path)
{
    zeldata_header* header = call_header();
    zeldata_captions* captions = call_captions();
    zeldata_toc* toc = call_toc();
    zeldata_screen_text* texts_on_screen = call_screen_text();
    zeldata_header* new_header = NULL;
    zeldata_captions* new_captions = NULL;
    zeldata_toc* new_toc = NULL;
    zeldata_screen_text* new_screen_text = NULL;
    zeldata_findings* findings = NULL;
    zeldata_document* document = NULL;
    int32_t system_error = -1;

    call_findings(captions);
    FORMATTER(header, set_header, header);
    FORMATTER(caption, set_captions, captions);
    FORMATTER(toc, set_toc, toc);
    FORMATTER(screen_text, set_screen_text, texts_on_screen);

    OK(zeldata_document_create(&document));
    COMMON(document, document);
    OK(zeldata_document_create_header(document, &new_header));
    OK(zeldata_document_create_captions(document, &new_captions));
    OK(zeldata_document_create_toc(document, &new_toc));
    OK(zeldata_document_create_screen_text(document, &new_screen_text));
    FAILS(ZELDATA_NO_DATA, zeldata_document_get_header(document, new_header));
    FAILS(ZELDATA_INVALID_ARGUMENT,
          zeldata_document_write_string(document, text, ZELDATA_FORMAT_XMP, 0));
    SAYS(document, "writeString", ZELDATA_INVALID_ARGUMENT);
    OK(zeldata_document_set_header(document, header));
    OK(zeldata_document_set_captions(document, captions));
    OK(zeldata_document_set_toc(document, toc));
    OK(zeldata_document_set_screen_text(document, texts_on_screen));
    OK(zeldata_document_get_header(document, new_header));
    OK(zeldata_document_get_captions(document, new_captions));
    OK(zeldata_document_get_toc(document, new_toc));
    OK(zeldata_document_get_screen_text(document, new_screen_text));

    OK(zeldata_string_set(text, "<!-- -->", T));
    OK(zeldata_document_write_string(document, text, ZELDATA_FORMAT_XMP, 1));
    EXPECT(strncmp(data(text), "<!-- --><x:xmpmeta ", 19) == 0);
    OK(zeldata_document_write_file(document, path, T, ZELDATA_FORMAT_XMP, 0));
    FAILS(ZELDATA_UNSUPPORTED_FORMAT, zeldata_document_write_file(document, "file", T, 2, 1));
    SAME(zeldata_last_message(document),
         "writeFile(\"file\", format 2): ZelData_UnsupportedFormat (0x8000000E): The format is not "
         "supported.");
    FAILS(ZELDATA_FILE_OPEN_FAILED,
          zeldata_document_replace_file(document, "", T, &system_error, 1));
    EXPECT(system_error > 0);
    EXPECT(strncmp(zeldata_last_message(document), "replaceFile(\"\"): ", 17) == 0);
    OK(zeldata_document_replace_file(document, path, T, &system_error, ZELDATA_FORMAT_XMP));
    EXPECT(system_error == 0);
    EXPECT(remove(path) == 0);

    OK(zeldata_findings_create(&findings));
    OK(zeldata_document_find_problems(document, findings));
    OK(zeldata_header_find_problems(header, findings));
    OK(zeldata_toc_find_problems(toc, findings));
    OK(zeldata_screen_text_find_problems(texts_on_screen, findings));
    zeldata_findings_destroy(findings);

    COPY_LANGUAGES(header, header);
    COPY_LANGUAGES(captions, captions);
    COPY_LANGUAGES(toc, toc);

    zeldata_screen_text_destroy(new_screen_text);
    zeldata_toc_destroy(new_toc);
    zeldata_captions_destroy(new_captions);
    zeldata_header_destroy(new_header);
    zeldata_document_destroy(document);
    zeldata_screen_text_destroy(texts_on_screen);
    zeldata_toc_destroy(toc);
    zeldata_captions_destroy(captions);
    zeldata_header_destroy(header);
}

int main(int count, char** arguments)
{
    if (count != 2) return 125;
    call_texts();
    call_results();
    call_helpers();
    call_document(arguments[1]);
    zeldata_strings_destroy(texts);
    zeldata_string_destroy(text);
    zeldata_string_destroy(NULL);
    return failures < 100 ? failures : 100;
}
