/// \file
/// The numbers of the errors of the bundled layer.
#ifndef GK_PLATFORM_CORE_OBJECT_ERROR_NUMBERS_H
#define GK_PLATFORM_CORE_OBJECT_ERROR_NUMBERS_H

/// One number per concrete error class, never given twice and never changed: callers compare them.
///
/// | Block | Owner |
/// |---|---|
/// | 0x10000100 | gkMathError, gkBadPointer, gkPel and the assertion |
/// | 0x10000200 | gkArchive |
/// | 0x10000300 | gkUITablet |
/// | 0x10000400 | gkEllipseFitDefs |
/// | 0x10000500 | gkTextDefs of the text formats, which lists its own |
/// | 0x10004680 to 0x10004684 | gkContourDefs, which lists its own |
class gk_ErrorNumber {
public:
    static constexpr long eMathSingular = 0x10000101;
    static constexpr long eBadPointer = 0x10000102;
    static constexpr long ePelBadWindow = 0x10000103;
    static constexpr long eAssertionFailed = 0x10000104;
    static constexpr long eMathOutOfRange = 0x10000105;

    static constexpr long eArchiveUnknownVersion = 0x10000201;
    static constexpr long eArchiveNotAnArchive = 0x10000202;
    static constexpr long eArchiveUnknownFormat = 0x10000203;
    static constexpr long eArchiveTruncated = 0x10000204;
    static constexpr long eArchiveTrailingBytes = 0x10000205;
    static constexpr long eArchiveCountTooLarge = 0x10000206;
    static constexpr long eArchiveUnknownType = 0x10000207;
    static constexpr long eArchiveWrongType = 0x10000208;
    static constexpr long eArchiveBadReference = 0x10000209;
    static constexpr long eArchiveBadValue = 0x1000020A;
    static constexpr long eArchiveValueOutOfRange = 0x1000020B;
    static constexpr long eArchiveTooDeep = 0x1000020C;
    static constexpr long eArchiveCannotOpen = 0x1000020D;
    static constexpr long eArchiveReadFailed = 0x1000020E;
    static constexpr long eArchiveWriteFailed = 0x1000020F;
    static constexpr long eArchiveWrongDirection = 0x10000210;

    static constexpr long eUITabletCannotWrite = 0x10000301;
    static constexpr long eUITabletBadSize = 0x10000302;

    static constexpr long eFitTooFewPoints = 0x10000401;
    static constexpr long eFitDegenerate = 0x10000402;
    static constexpr long eFitNotFinite = 0x10000403;
    static constexpr long eFitLimitExceeded = 0x10000404;
    static constexpr long eFitBadParams = 0x10000405;

    gk_ErrorNumber() = delete;
};

#endif
