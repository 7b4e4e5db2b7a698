"""The library through ctypes, as a program in Python would write it."""

import ctypes
import os

DONE, WITH_ERRORS, WRONG_USE, FAILED = range(4)
YES, NO, CANCEL = 1, 2, 3

Progress = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int64, ctypes.c_int64)
ShouldCancel = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p)
Ask = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int)


class Options(ctypes.Structure):
    _fields_ = (
        [("size", ctypes.c_size_t)]
        + [
            (name, ctypes.c_int32)
            for name in (
                "character_set",
                "unknown_objects",
                "source_kind",
                "without_zeroes",
                "from_instrument",
                "three_point_arcs",
                "without_log_book",
                "has_selection",
            )
        ]
        + [(name, ctypes.c_double) for name in ("min_x", "min_y", "max_x", "max_y")]
    )


class Callbacks(ctypes.Structure):
    _fields_ = [
        ("size", ctypes.c_size_t),
        ("context", ctypes.c_void_p),
        ("progress", Progress),
        ("should_cancel", ShouldCancel),
        ("ask", Ask),
    ]


def load(name):
    library = ctypes.CDLL(name)
    text, number, handle = ctypes.c_char_p, ctypes.c_int, ctypes.c_void_p
    options, callbacks = ctypes.POINTER(Options), ctypes.POINTER(Callbacks)
    for function, result, arguments in (
        (library.korvande_version, text, []),
        (library.korvande_interface, number, []),
        (library.korvande_open, number, [text, ctypes.POINTER(handle)]),
        (library.korvande_translate, number, [handle, text, text, text, text, options, callbacks]),
        (library.korvande_check, number, [handle, text, options, callbacks]),
        (library.korvande_last_error, text, [handle]),
        (library.korvande_result, text, [handle]),
        (library.korvande_close, None, [handle]),
    ):
        function.restype = result
        function.argtypes = arguments
    return library


class Handle:
    """A control table that is open; closed at the end of a with block."""

    def __init__(self, library, table=None):
        self.library = library
        self.handle = ctypes.c_void_p()
        self.status = library.korvande_open(bytes_of(table), ctypes.byref(self.handle))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.library.korvande_close(self.handle)

    def translate(self, mode, source, target=None, log_book=None, options=None, **callbacks):
        names = [bytes_of(name) for name in (mode, source, target, log_book)]
        return self.library.korvande_translate(self.handle, *names, options_of(options), callbacks_of(**callbacks))

    def check(self, source, options=None, **callbacks):
        return self.library.korvande_check(
            self.handle, bytes_of(source), options_of(options), callbacks_of(**callbacks)
        )

    @property
    def error(self):
        return self.library.korvande_last_error(self.handle).decode("utf-8")

    @property
    def result(self):
        text = self.library.korvande_result(self.handle)
        return None if text is None else text.decode("utf-8")


def bytes_of(name):
    return None if name is None else os.fsencode(name)


def options_of(values):
    return None if values is None else Options(size=ctypes.sizeof(Options), **values)


def callbacks_of(progress=None, should_cancel=None, ask=None):
    given = Callbacks(size=ctypes.sizeof(Callbacks))
    if progress:
        given.progress = Progress(lambda _, name, done, total: progress(name.decode("utf-8"), done, total))
    if should_cancel:
        given.should_cancel = ShouldCancel(lambda _: should_cancel())
    if ask:
        given.ask = Ask(lambda _, question, proposed: ask(question.decode("utf-8"), proposed))
    return given
