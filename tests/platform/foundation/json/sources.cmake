set(FOUNDATION_JSON_TEST_SOURCES
    json/JSONDecoderTest.cpp
    json/JSONEncoderTest.cpp
    json/JSONNumberTest.cpp
    json/JSONReaderTest.cpp
    json/JSONStringTest.cpp
    json/JSONTestSuiteTest.cpp
    json/TaggedUnionTest.cpp)
