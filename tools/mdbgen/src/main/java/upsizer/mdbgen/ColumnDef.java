package upsizer.mdbgen;

import com.healthmarketscience.jackcess.DataType;

/** What the row writer needs to know about a column of the description. */
record ColumnDef(String name, DataType type, int size, int precision, int scale, boolean autoNumber) {
    boolean isText() {
        return type == DataType.TEXT || type == DataType.MEMO;
    }

    boolean isBinary() {
        return type == DataType.OLE || type == DataType.BINARY;
    }
}
