/*
 * KORVANDE as a library: survey drawings between IDEX, NEN1878 and SUF2.
 *
 * This is the interface that stays. What a program was built with goes on working with every later library of the same
 * name (libkorvande.so.1): functions and members are added, none is changed or taken away.
 *
 * Texts are UTF-8 and end with a NUL byte. Names of files are as their user gives them; relative ones count from the
 * current folder. Texts that are handed in belong to the caller and are not looked at after the call. Texts that are
 * handed out belong to the handle and stay until the next call with it, unless it is said otherwise; none is to be
 * freed. What they tell a person is Dutch.
 *
 * Any number of handles can be open and at work at once, each in one thread at a time; it need not always be the same
 * thread. A handle that is at work refuses other calls (KORVANDE_WRONG_USE). While one is at work the environment, the
 * current folder and the locale of the process must stay as they are.
 *
 * No exception leaves the library, also when memory runs out. It keeps no values of its own, but what it has read of
 * folders, catches no signals and prints nothing.
 */
#ifndef KORVANDE_H
#define KORVANDE_H

#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32) && defined(KORVANDE_BUILDS_LIBRARY)
#define KORVANDE_API __declspec(dllexport)
#elif defined(_WIN32)
#define KORVANDE_API __declspec(dllimport)
#else
#define KORVANDE_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#define KORVANDE_NOEXCEPT noexcept
#else
#define KORVANDE_NOEXCEPT
#endif

/* The interface that this header describes. It counts up with everything that is added. */
#define KORVANDE_INTERFACE 1

/* What functions that can fail give back; the console program ends with the same. */
#define KORVANDE_DONE 0
#define KORVANDE_WITH_ERRORS 1 /* done, with errors or from a damaged input; checked, with problems */
#define KORVANDE_WRONG_USE 2   /* arguments that are none; nothing was done */
#define KORVANDE_FAILED 3      /* nothing came of it, or it was cancelled */

/* A control table (the settings and the codes) that is open, with what became of the latest call. */
typedef struct korvande_handle korvande_handle;

/* What a drawing's bytes stand for. */
#define KORVANDE_CHARACTERS_FOUND_OUT 0 /* Windows-1252, but lines that are UTF-8 are read as such */
#define KORVANDE_CHARACTERS_WINDOWS_1252 1
#define KORVANDE_CHARACTERS_CP850 2

/* What becomes of objects whose code the control table does not know. */
#define KORVANDE_UNKNOWN_BY_TABLE 0 /* what the control table says */
#define KORVANDE_UNKNOWN_TAKEN 1
#define KORVANDE_UNKNOWN_LEFT_OUT 2

/*
 * The options of a call. All zeros, but for the size, is as without. A size that is larger than the library knows is
 * good as long as what it does not know is zero. Members that are 0 or 1 may have no other value.
 */
typedef struct korvande_options {
    size_t size;              /* sizeof(korvande_options) */
    int32_t character_set;    /* KORVANDE_CHARACTERS_... */
    int32_t unknown_objects;  /* KORVANDE_UNKNOWN_...; a check takes them always */
    int32_t source_kind;      /* of the G field of NEN1878 and SUF2, 0 to 5: unknown, terrestrial, photogrammetric,
                                 digitised, scanned, converted from a map */
    int32_t without_zeroes;   /* 1: points without coordinates are left out */
    int32_t from_instrument;  /* 1: IDEX without LAYERS is read too */
    int32_t three_point_arcs; /* 1: arcs as three points (line type 12), whatever the control table says */
    int32_t without_log_book; /* 1: no log book is kept */
    int32_t has_selection;    /* 1: of NEN1878 and SUF2 only what touches this rectangle, in metres; the minima are not
                                 above the maxima */
    double min_x;
    double min_y;
    double max_x;
    double max_y;
} korvande_options;

#define KORVANDE_OPTIONS_NONE \
    { sizeof(korvande_options), 0, 0, 0, 0, 0, 0, 0, 0, 0.0, 0.0, 0.0, 0.0 }

/* Answers to a question. */
#define KORVANDE_YES 1
#define KORVANDE_NO 2
#define KORVANDE_CANCEL 3

/*
 * What the library calls while it works, in the thread of the call; each may be NULL. They must return, without an
 * exception or a jump, and cannot use the handle that is at work.
 */
typedef struct korvande_callbacks {
    size_t size;   /* sizeof(korvande_callbacks); as with the options */
    void* context; /* handed to each */

    /*
     * How far a step of the work is. A step begins with done 0, goes on, never back, and ends with done equal to total,
     * but for a call that fails or is cancelled. total is above 0; what it counts differs. Every 50 milliseconds at
     * most, but for beginnings and ends. The name tells a person what is being done, in Dutch; it may change in a step
     * and be empty at first, and is gone after the callback.
     */
    void (*progress)(void* context, const char* name, int64_t done, int64_t total);

    /* Not 0 ends the work: the call gives KORVANDE_FAILED and leaves no output. Asked as often as progress is told. */
    int (*should_cancel)(void* context);

    /*
     * A question about the format of the input, in Dutch; the answer that is proposed is the one that is taken without
     * this callback. Any answer but KORVANDE_YES and KORVANDE_NO cancels. A check asks nothing: it goes on with what is
     * proposed and tells the question as a problem.
     */
    int (*ask)(void* context, const char* question, int proposed);
} korvande_callbacks;

#define KORVANDE_CALLBACKS_NONE \
    { sizeof(korvande_callbacks), NULL, NULL, NULL, NULL }

/* The version of the library, such as "8.01.064". It stays for good. */
KORVANDE_API const char* korvande_version(void) KORVANDE_NOEXCEPT;

/* The interface of the library: what a program needs is there when it is not below its own KORVANDE_INTERFACE. */
KORVANDE_API int korvande_interface(void) KORVANDE_NOEXCEPT;

/*
 * Opens a control table (*.nst), or without a name (NULL) the defaults of the console program: no codes, and objects of
 * unknown codes are taken along. The file is read now and not kept open.
 *
 * *handle becomes a handle also when it fails, so that korvande_last_error tells why; korvande_close takes it. Only
 * when there is no memory for it, it is NULL.
 *
 * KORVANDE_DONE; KORVANDE_WITH_ERRORS for a control table that seems to be cut off, and is used as far as it goes;
 * KORVANDE_WRONG_USE without handle or for an empty name; KORVANDE_FAILED when it cannot be read or is none.
 */
KORVANDE_API int korvande_open(const char* table, korvande_handle** handle) KORVANDE_NOEXCEPT;

/*
 * Translates a drawing, as `korvande-cli vertaal` does, to the same bytes.
 *
 * mode: "idex-nen1878", "idex-suf2", "nen1878-idex" or "suf2-idex".
 * output: NULL for the name of the input with its last three characters replaced (SFN or IDX). A file of this name is
 *   replaced when the translation is done, and stays as it was when it fails.
 * log: where the log book goes; NULL for the name of the output with LOG in place of its last three characters. It is
 *   written also when the translation fails.
 * options, callbacks: NULL for none.
 *
 * KORVANDE_DONE; KORVANDE_WITH_ERRORS; KORVANDE_WRONG_USE, also when two of the files are the same one, or the control
 * table; KORVANDE_FAILED when the input cannot be read or is not of the format, the output or the log book cannot be
 * written, or it was cancelled. Losses without an error are KORVANDE_DONE: korvande_result tells them.
 */
KORVANDE_API int korvande_translate(korvande_handle* handle, const char* mode, const char* input, const char* output,
                                    const char* log, const korvande_options* options,
                                    const korvande_callbacks* callbacks) KORVANDE_NOEXCEPT;

/*
 * Reads a drawing of any of the formats, which is found out, and looks for problems, as `korvande-cli controleer` does.
 * Writes nothing. Of the options those for writing are of no use.
 *
 * KORVANDE_DONE without any problem; KORVANDE_WITH_ERRORS with problems (and codes that the control table does not
 * know); KORVANDE_WRONG_USE; KORVANDE_FAILED when the input cannot be read or is of no format, or it was cancelled.
 */
KORVANDE_API int korvande_check(korvande_handle* handle, const char* input, const korvande_options* options,
                                const korvande_callbacks* callbacks) KORVANDE_NOEXCEPT;

/*
 * Why the latest call with the handle did not give KORVANDE_DONE: a line or more, the text for a person. Empty when it
 * did. Without a handle (NULL) it says that memory ran out.
 */
KORVANDE_API const char* korvande_last_error(const korvande_handle* handle) KORVANDE_NOEXCEPT;

/*
 * What the latest translation or check came to, as a JSON object: the account of its objects, the problems with their
 * lines and sentences, the counts, the codes. Its members (Dutch) are those of a file in what korvande-cli writes with
 * --json: "vertaling", "controle" or "nietGecontroleerd" in docs/schema/resultaat-1.schema.json. NULL when the latest
 * call with the handle was none of these, a wrong use or a check that was cancelled, or there was no memory for it.
 */
KORVANDE_API const char* korvande_result(const korvande_handle* handle) KORVANDE_NOEXCEPT;

/* Gives back all that the handle holds. NULL, and a handle that is at work, are left alone. */
KORVANDE_API void korvande_close(korvande_handle* handle) KORVANDE_NOEXCEPT;

#ifdef __cplusplus
}
#endif

#endif
