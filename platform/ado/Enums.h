#pragma once

// ADO's and ADOX's numbers, exactly as the type libraries define them: the system stores and
// compares these numbers, and the providers report them. Never renumber.

namespace ado {

enum class DataTypeEnum : int {
    adEmpty = 0,
    adSmallInt = 2,
    adInteger = 3,
    adSingle = 4,
    adDouble = 5,
    adCurrency = 6,
    adDate = 7,
    adBSTR = 8,
    adError = 10,
    adBoolean = 11,
    adVariant = 12,
    adDecimal = 14,
    adTinyInt = 16,
    adUnsignedTinyInt = 17,
    adUnsignedSmallInt = 18,
    adUnsignedInt = 19,
    adBigInt = 20,
    adUnsignedBigInt = 21,
    adGUID = 72,
    adBinary = 128,
    adChar = 129,
    adWChar = 130,
    adNumeric = 131,
    adDBDate = 133,
    adDBTime = 134,
    adDBTimeStamp = 135,
    adVarChar = 200,
    adLongVarChar = 201,
    adVarWChar = 202,
    adLongVarWChar = 203,
    adVarBinary = 204,
    adLongVarBinary = 205,
};

enum class CursorTypeEnum : int {
    adOpenUnspecified = -1,
    adOpenForwardOnly = 0,
    adOpenKeyset = 1,
    adOpenDynamic = 2,
    adOpenStatic = 3,
};

enum class LockTypeEnum : int {
    adLockUnspecified = -1,
    adLockReadOnly = 1,
    adLockPessimistic = 2,
    adLockOptimistic = 3,
    adLockBatchOptimistic = 4,
};

enum class CursorLocationEnum : int {
    adUseNone = 1,
    adUseServer = 2,
    adUseClient = 3,
};

enum class SchemaEnum : int {
    adSchemaCatalogs = 1,
    adSchemaColumns = 4,
    adSchemaCheckConstraints = 5,
    adSchemaIndexes = 12,
    adSchemaProcedures = 16,
    adSchemaTables = 20,
    adSchemaForeignKeys = 27,
    adSchemaPrimaryKeys = 28,
    adSchemaDBInfoKeywords = 30,
    adSchemaDBInfoLiterals = 31,
};

enum class CommandTypeEnum : int {
    adCmdUnspecified = -1,
    adCmdText = 1,
    adCmdTable = 2,
    adCmdStoredProc = 4,
    adCmdUnknown = 8,
    adCmdTableDirect = 512,
};

enum class ParameterDirectionEnum : int {
    adParamUnknown = 0,
    adParamInput = 1,
    adParamOutput = 2,
    adParamInputOutput = 3,
    adParamReturnValue = 4,
};

enum class EditModeEnum : int {
    adEditNone = 0,
    adEditInProgress = 1,
    adEditAdd = 2,
    adEditDelete = 4,
};

enum class CompareEnum : int {
    adCompareLessThan = 0,
    adCompareEqual = 1,
    adCompareGreaterThan = 2,
    adCompareNotEqual = 3,
    adCompareNotComparable = 4,
};

enum class AffectEnum : int {
    adAffectCurrent = 1,
    adAffectGroup = 2,
    adAffectAll = 3,
};

enum class EventReasonEnum : int {
    adRsnAddNew = 1,
    adRsnDelete = 2,
    adRsnUpdate = 3,
    adRsnUndoUpdate = 4,
    adRsnUndoAddNew = 5,
    adRsnUndoDelete = 6,
    adRsnRequery = 7,
    adRsnResynch = 8,
    adRsnClose = 9,
    adRsnMove = 10,
    adRsnFirstChange = 11,
    adRsnMoveFirst = 12,
    adRsnMoveNext = 13,
    adRsnMovePrevious = 14,
    adRsnMoveLast = 15,
};

// ADOX
enum class KeyTypeEnum : int {
    adKeyPrimary = 1,
    adKeyForeign = 2,
    adKeyUnique = 3,
};

enum class RuleEnum : int {
    adRINone = 0,
    adRICascade = 1,
    adRISetNull = 2,
    adRISetDefault = 3,
};

enum class SortOrderEnum : int {
    adSortAscending = 1,
    adSortDescending = 2,
};

enum class AllowNullsEnum : int {
    adIndexNullsAllow = 0,
    adIndexNullsDisallow = 1,
    adIndexNullsIgnore = 2,
    adIndexNullsIgnoreAny = 4,
};

// Bit masks stay plain numbers, because the system adds them up and passes them as such.

// ConnectModeEnum
inline constexpr long adModeUnknown = 0;
inline constexpr long adModeRead = 1;
inline constexpr long adModeWrite = 2;
inline constexpr long adModeReadWrite = 3;
inline constexpr long adModeShareDenyRead = 4;
inline constexpr long adModeShareDenyWrite = 8;
inline constexpr long adModeShareExclusive = 12;
inline constexpr long adModeShareDenyNone = 16;

// ObjectStateEnum
inline constexpr long adStateClosed = 0;
inline constexpr long adStateOpen = 1;
inline constexpr long adStateConnecting = 2;
inline constexpr long adStateExecuting = 4;
inline constexpr long adStateFetching = 8;

// ExecuteOptionEnum and the "unspecified" options value
inline constexpr long adOptionUnspecified = -1;
inline constexpr long adExecuteNoRecords = 128;

// CursorOptionEnum, for Recordset::Supports
inline constexpr long adHoldRecords = 0x100;
inline constexpr long adMovePrevious = 0x200;
inline constexpr long adAddNew = 0x1000400;
inline constexpr long adDelete = 0x1000800;
inline constexpr long adBookmark = 0x2000;
inline constexpr long adApproxPosition = 0x4000;
inline constexpr long adUpdateBatch = 0x10000;
inline constexpr long adResync = 0x20000;
inline constexpr long adNotify = 0x40000;
inline constexpr long adFind = 0x80000;
inline constexpr long adIndex = 0x100000;
inline constexpr long adSeek = 0x200000;
inline constexpr long adUpdate = 0x1008000;

// FieldAttributeEnum (the same bits as OLE DB's COLUMN_FLAGS)
inline constexpr long adFldMayDefer = 0x2;
inline constexpr long adFldUpdatable = 0x4;
inline constexpr long adFldUnknownUpdatable = 0x8;
inline constexpr long adFldFixed = 0x10;
inline constexpr long adFldIsNullable = 0x20;
inline constexpr long adFldMayBeNull = 0x40;
inline constexpr long adFldLong = 0x80;
inline constexpr long adFldRowID = 0x100;
inline constexpr long adFldKeyColumn = 0x8000;

// RecordStatusEnum
inline constexpr long adRecOK = 0;
inline constexpr long adRecNew = 0x1;
inline constexpr long adRecModified = 0x2;
inline constexpr long adRecUnmodified = 0x8;
inline constexpr long adRecInvalid = 0x10;
inline constexpr long adRecCanceled = 0x100;
inline constexpr long adRecConcurrencyViolation = 0x800;
inline constexpr long adRecIntegrityViolation = 0x1000;

// PositionEnum
inline constexpr long adPosUnknown = -1;
inline constexpr long adPosBOF = -2;
inline constexpr long adPosEOF = -3;

// FilterGroupEnum; GetRowsOptionEnum
inline constexpr long adFilterNone = 0;
inline constexpr long adGetRowsRest = -1;

// ADOX ColumnAttributesEnum
inline constexpr long adColFixed = 1;
inline constexpr long adColNullable = 2;

} // namespace ado
