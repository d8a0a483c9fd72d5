"""What is mutated, and the tests that are to notice."""

from dataclasses import dataclass


@dataclass(frozen=True)
class Suite:
    name: str
    files: list  # patterns
    programs: list  # tests and the filter of those that can have anything to do with it, in turn


JSON = "src/platform/foundation/json"
VIEWS = "src/platform/views"

SUITES = [
    Suite(
        "JSON",
        [
            f"{JSON}/{name}"
            for name in (
                "Decoder.*",
                "DecodingError.cpp",
                "Encoder.*",
                "JSONDecoder.*",
                "JSONDocument.cpp",
                "JSONNumber.*",
                "JSONReader.*",
                "JSONScanner.*",
                "JSONString.cpp",
                "RecordReader.hpp",
                "ShortNumber.hpp",
            )
        ]
        + ["src/platform/foundation/text/UTF8.cpp"],
        [
            ("foundation_test", "JSON*:TaggedUnion*:UTF8*"),
            ("estado_test", "*"),
            ("peticiones_test", "Peticion*"),
        ],
    ),
    Suite(
        "snapshot",
        ["src/estado/*", f"{JSON}/RecordEquality.hpp"],
        [("estado_test", "*")],
    ),
    Suite(
        "request",
        ["src/peticiones/*"],
        [("peticiones_test", "*")],
    ),
    Suite(
        "layout",
        [
            f"{VIEWS}/layout/*",
            f"{VIEWS}/stacks/*",
            f"{VIEWS}/modifiers/Frame.cpp",
            f"{VIEWS}/modifiers/Padding.cpp",
            f"{VIEWS}/text/TextLayout.cpp",
        ],
        [("views_test", "*"), ("vistas_test", "*")],
    ),
    Suite(
        "rounding",
        [
            "src/platform/foundation/localization/Format.cpp",
            "src/platform/foundation/localization/NumberFormat.cpp",
        ],
        [("foundation_test", "Format*:NumberFormat*:Localized*:Bundle*"), ("vistas_test", "*")],
    ),
    Suite(
        "levels",
        ["src/vistas/JaladorChico.cpp", "src/vistas/BotonDePaso.cpp", "src/vistas/CurvaChica.cpp",
         "src/vistas/VolumenPorAppVista.cpp"],
        [("vistas_test", "*")],
    ),
    Suite("pixels", ["src/platform/canvas/PixelGrid.hpp"], [("canvas_test", "*")]),
]
