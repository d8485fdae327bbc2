package upsizer.mdbgen;

import com.healthmarketscience.jackcess.Column;
import com.healthmarketscience.jackcess.ColumnBuilder;
import com.healthmarketscience.jackcess.Cursor;
import com.healthmarketscience.jackcess.CursorBuilder;
import com.healthmarketscience.jackcess.DataType;
import com.healthmarketscience.jackcess.Database;
import com.healthmarketscience.jackcess.DatabaseBuilder;
import com.healthmarketscience.jackcess.DateTimeType;
import com.healthmarketscience.jackcess.IndexBuilder;
import com.healthmarketscience.jackcess.PropertyMap;
import com.healthmarketscience.jackcess.Relationship;
import com.healthmarketscience.jackcess.RelationshipBuilder;
import com.healthmarketscience.jackcess.RowId;
import com.healthmarketscience.jackcess.Table;
import com.healthmarketscience.jackcess.TableBuilder;
import com.healthmarketscience.jackcess.impl.ColumnImpl;
import java.io.IOException;
import java.io.PrintStream;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.StandardCopyOption;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import java.util.Objects;

/** Builds a Jet 4 .mdb from a description (see README.md for the format). */
final class Builder {
    /** Rows handed to Jackcess at a time: big enough to be quick, small enough to keep memory flat. */
    static final int BATCH = 2000;

    private final Desc root;
    private final Long rowsForAll;
    private final Map<String, Long> rowsPerTable;
    private final PrintStream log;

    /** One table of the description with its Jackcess table and the column layout rows use. */
    private static final class TableState {
        final Desc desc;
        final String name;
        final List<ColumnDef> columns = new ArrayList<>();
        Table table;
        long inserted;
        final Map<Long, RowId> wanted = new HashMap<>(); // insertion index -> row id, for changes

        TableState(Desc desc, String name) {
            this.desc = desc;
            this.name = name;
        }

        ColumnDef column(Desc where, String colName) {
            for (ColumnDef c : columns) {
                if (c.name().equalsIgnoreCase(colName)) {
                    return c;
                }
            }
            throw where.error("table \"" + name + "\" has no column \"" + colName + "\"");
        }
    }

    Builder(Desc root, Long rowsForAll, Map<String, Long> rowsPerTable, PrintStream log) {
        this.root = root;
        this.rowsForAll = rowsForAll;
        this.rowsPerTable = rowsPerTable;
        this.log = log;
    }

    void build(Path out) throws IOException {
        root.object("format", "password", "creationDate", "encodingKey", "seed", "allowAutoNumberInsert", "tables",
                "relations");
        String formatName = root.text("format", "V2000");
        Database.FileFormat format;
        switch (formatName) {
            case "V2000": format = Database.FileFormat.V2000; break;
            case "V2003": format = Database.FileFormat.V2003; break;
            default: throw root.get("format").error("only the Jet 4 formats V2000 and V2003 are built");
        }
        String password = root.text("password", null);
        if (password != null && password.length() > HeaderPassword.MAX_CHARS) {
            throw root.get("password").error("a Jet 4 password has at most 20 characters");
        }
        Double creationDate = root.has("creationDate") ? Values.dateDouble(root.get("creationDate")) : null;
        long seed = root.integer("seed", 1);
        Integer encodingKey = null;
        if (root.has("encodingKey")) {
            String k = root.text("encodingKey");
            if (!k.matches("[0-9A-Fa-f]{8}") || Long.parseLong(k, 16) == 0) {
                throw root.get("encodingKey").error("the database key is 8 hex digits, not all zero");
            }
            encodingKey = (int) Long.parseLong(k, 16);
        }

        Path parent = out.toAbsolutePath().getParent();
        Files.createDirectories(parent);
        Path part = parent.resolve(out.getFileName() + ".part");
        Files.deleteIfExists(part);
        try {
            try (Database db = new DatabaseBuilder(part.toFile()).setFileFormat(format).setAutoSync(false).create()) {
                db.setDateTimeType(DateTimeType.LOCAL_DATE_TIME);
                // Rows hold exactly what the description says: no default values filled in, no
                // validation rules run, no foreign key checks (orphans are a legitimate test case).
                db.setEvaluateExpressions(false);
                db.setEnforceForeignKeys(false);
                db.setAllowAutoNumberInsert(root.bool("allowAutoNumberInsert", false));

                List<TableState> tables = new ArrayList<>();
                for (Desc t : root.list("tables")) {
                    tables.add(createTable(db, t));
                }
                for (Desc r : root.list("relations")) {
                    createRelation(db, r);
                }
                for (TableState t : tables) {
                    fill(t, seed);
                }
            }
            if (encodingKey != null) {
                HeaderPassword.encodePages(part, encodingKey);
            }
            if (password != null || creationDate != null) {
                HeaderPassword.write(part, password == null ? "" : password, creationDate);
                checkPassword(part, password == null ? "" : password);
            }
            Files.move(part, out, StandardCopyOption.REPLACE_EXISTING, StandardCopyOption.ATOMIC_MOVE);
        } finally {
            Files.deleteIfExists(part);
        }
    }

    /** Reads the password back twice, by our own unmasking and through Jackcess, and compares. */
    private static void checkPassword(Path file, String expected) throws IOException {
        String own = HeaderPassword.read(file);
        String jackcess;
        try (Database db = new DatabaseBuilder(file.toFile()).setReadOnly(true).open()) {
            jackcess = db.getDatabasePassword();
        }
        String jackcessText = jackcess == null ? "" : jackcess;
        if (!own.equals(expected) || !jackcessText.equals(expected)) {
            throw new IOException("password check failed: wrote \"" + expected + "\", read back \"" + own
                    + "\" (own) and \"" + jackcessText + "\" (Jackcess)");
        }
    }

    // ---- tables ----

    private TableState createTable(Database db, Desc t) throws IOException {
        t.object("name", "columns", "indexes", "properties", "rows", "generate", "changes");
        TableState state = new TableState(t, t.text("name"));
        TableBuilder tb = new TableBuilder(state.name);
        for (Desc c : t.get("columns").list()) {
            ColumnBuilder cb = columnBuilder(c);
            tb.addColumn(cb);
            state.columns.add(columnDef(c, cb));
        }
        for (Desc i : t.list("indexes")) {
            tb.addIndex(indexBuilder(i));
        }
        Desc props = t.opt("properties");
        if (props != null) {
            putProperties(props, tb::putProperty, tb::putProperty);
        }
        try {
            state.table = tb.toTable(db);
        } catch (IllegalArgumentException e) {
            throw t.error("Jackcess refused the table: " + e.getMessage());
        }
        return state;
    }

    private static DataType dataType(Desc s) {
        String name = s.text().toUpperCase(Locale.ROOT);
        switch (name) {
            case "BYTE": return DataType.BYTE;
            case "INT": case "INTEGER": return DataType.INT;
            case "LONG": return DataType.LONG;
            case "MONEY": case "CURRENCY": return DataType.MONEY;
            case "FLOAT": case "SINGLE": return DataType.FLOAT;
            case "DOUBLE": return DataType.DOUBLE;
            case "SHORT_DATE_TIME": case "DATETIME": return DataType.SHORT_DATE_TIME;
            case "TEXT": return DataType.TEXT;
            case "MEMO": return DataType.MEMO;
            case "BOOLEAN": return DataType.BOOLEAN;
            case "GUID": return DataType.GUID;
            case "NUMERIC": case "DECIMAL": return DataType.NUMERIC;
            case "OLE": return DataType.OLE;
            case "BINARY": return DataType.BINARY;
            default: throw s.error("unknown column type \"" + s.text() + "\"");
        }
    }

    private static ColumnBuilder columnBuilder(Desc c) {
        c.object("name", "type", "size", "precision", "scale", "autoNumber", "required", "allowZeroLength",
                "defaultValue", "description", "compressedUnicode", "hyperlink", "properties");
        DataType type = dataType(c.get("type"));
        ColumnBuilder cb = new ColumnBuilder(c.text("name"), type);
        if (type == DataType.TEXT || type == DataType.BINARY) {
            long size = c.integer("size", 255);
            if (size < 1 || size > 255) {
                throw c.get("size").error(type + " size is 1..255");
            }
            cb.setLengthInUnits((int) size);
        } else if (c.has("size")) {
            throw c.get("size").error("only TEXT and BINARY columns take a size");
        }
        if (type == DataType.NUMERIC) {
            long precision = c.integer("precision", 18);
            long scale = c.integer("scale", 0);
            if (precision < 1 || precision > 28 || scale < 0 || scale > precision) {
                throw c.error("NUMERIC needs 1 <= precision <= 28 and 0 <= scale <= precision");
            }
            cb.setPrecision((int) precision).setScale((int) scale);
        } else if (c.has("precision") || c.has("scale")) {
            throw c.error("only NUMERIC columns take precision and scale");
        }
        if (c.bool("autoNumber", false)) {
            if (type != DataType.LONG && type != DataType.GUID) {
                throw c.get("autoNumber").error("AutoNumber is LONG (increment) or GUID (random)");
            }
            cb.setAutoNumber(true);
        }
        if (type == DataType.TEXT || type == DataType.MEMO) {
            // Access turns "Unicode Compression" on for columns made in the table designer.
            cb.setCompressedUnicode(c.bool("compressedUnicode", true));
        } else if (c.has("compressedUnicode")) {
            throw c.get("compressedUnicode").error("only TEXT and MEMO columns are compressed");
        }
        if (c.bool("hyperlink", false)) {
            if (type != DataType.MEMO) {
                throw c.get("hyperlink").error("only MEMO columns are hyperlinks");
            }
            cb.setHyperlink(true);
        }
        if (c.has("required")) {
            cb.putProperty(PropertyMap.REQUIRED_PROP, DataType.BOOLEAN, c.bool("required", false));
        }
        if (c.has("allowZeroLength")) {
            cb.putProperty(PropertyMap.ALLOW_ZERO_LEN_PROP, DataType.BOOLEAN, c.bool("allowZeroLength", false));
        }
        if (c.has("defaultValue")) {
            // The Jet expression text, e.g. "0", "\"abc\"", "Now()".
            cb.putProperty(PropertyMap.DEFAULT_VALUE_PROP, DataType.TEXT, c.text("defaultValue"));
        }
        if (c.has("description")) {
            cb.putProperty(PropertyMap.DESCRIPTION_PROP, DataType.TEXT, c.text("description"));
        }
        Desc props = c.opt("properties");
        if (props != null) {
            putProperties(props, cb::putProperty, cb::putProperty);
        }
        return cb;
    }

    private static ColumnDef columnDef(Desc c, ColumnBuilder cb) {
        DataType t = cb.getType();
        int size = t == DataType.TEXT || t == DataType.BINARY ? (int) c.integer("size", 255) : 0;
        return new ColumnDef(cb.getName(), t, size, t == DataType.NUMERIC ? cb.getPrecision() : 0,
                t == DataType.NUMERIC ? cb.getScale() : 0, cb.isAutoNumber());
    }

    interface PutUntyped {
        Object put(String name, Object value);
    }

    interface PutTyped {
        Object put(String name, DataType type, Object value);
    }

    /**
     * Extra properties: "Name": value (a string, boolean or integer, typed as Jet does for known
     * names) or "Name": {"type": "BYTE", "value": 2}.
     */
    private static void putProperties(Desc props, PutUntyped untyped, PutTyped typed) {
        props.freeObject();
        for (String name : props.keys()) {
            Desc v = props.get(name);
            if (v.isObject()) {
                v.object("type", "value");
                DataType type = dataType(v.get("type"));
                Object value = Values.literal(v.get("value"), new ColumnDef(name, type, 255, 28, 0, false));
                typed.put(name, type, value);
            } else if (v.node.isTextual()) {
                untyped.put(name, v.text());
            } else if (v.node.isBoolean()) {
                untyped.put(name, v.node.booleanValue());
            } else if (v.node.isIntegralNumber() && v.node.canConvertToInt()) {
                untyped.put(name, v.node.intValue());
            } else {
                throw v.error("a property is a string, boolean, integer or {\"type\": ..., \"value\": ...}");
            }
        }
    }

    private static IndexBuilder indexBuilder(Desc i) {
        i.object("name", "columns", "primaryKey", "unique", "ignoreNulls", "required");
        IndexBuilder ib = new IndexBuilder(i.text("name"));
        List<Desc> cols = i.get("columns").list();
        if (cols.isEmpty() || cols.size() > 10) {
            throw i.get("columns").error("an index has 1..10 columns");
        }
        for (Desc c : cols) {
            if (c.node.isTextual()) {
                ib.addColumns(true, c.text());
            } else {
                c.object("name", "descending");
                ib.addColumns(!c.bool("descending", false), c.text("name"));
            }
        }
        if (i.bool("primaryKey", false)) {
            ib.setPrimaryKey();
        }
        if (i.bool("unique", false)) {
            ib.setUnique();
        }
        if (i.bool("ignoreNulls", false)) {
            ib.setIgnoreNulls();
        }
        if (i.bool("required", false)) {
            ib.setRequired();
        }
        return ib;
    }

    private static void createRelation(Database db, Desc r) throws IOException {
        r.object("name", "primary", "foreign", "referentialIntegrity", "cascadeUpdates", "cascadeDeletes",
                "cascadeNullOnDelete", "join");
        Desc p = r.get("primary").object("table", "columns");
        Desc f = r.get("foreign").object("table", "columns");
        List<Desc> pc = p.get("columns").list();
        List<Desc> fc = f.get("columns").list();
        if (pc.isEmpty() || pc.size() != fc.size()) {
            throw r.error("primary and foreign need the same, non-zero number of columns");
        }
        RelationshipBuilder rb = new RelationshipBuilder(p.text("table"), f.text("table"));
        for (int k = 0; k < pc.size(); k++) {
            rb.addColumns(pc.get(k).text(), fc.get(k).text());
        }
        if (r.has("name")) {
            rb.setName(r.text("name"));
        }
        boolean integrity = r.bool("referentialIntegrity", false);
        if (integrity) {
            rb.setReferentialIntegrity();
        }
        boolean cu = r.bool("cascadeUpdates", false);
        boolean cd = r.bool("cascadeDeletes", false);
        boolean cn = r.bool("cascadeNullOnDelete", false);
        if ((cu || cd || cn) && !integrity) {
            throw r.error("cascades need referentialIntegrity");
        }
        if (cu) {
            rb.setCascadeUpdates();
        }
        if (cd) {
            rb.setCascadeDeletes();
        }
        if (cn) {
            rb.setCascadeNullOnDelete();
        }
        switch (r.text("join", "inner")) {
            case "inner": break;
            case "left": rb.setJoinType(Relationship.JoinType.LEFT_OUTER); break;
            case "right": rb.setJoinType(Relationship.JoinType.RIGHT_OUTER); break;
            default: throw r.get("join").error("join is inner, left or right");
        }
        try {
            rb.toRelationship(db);
        } catch (IllegalArgumentException e) {
            throw r.error("Jackcess refused the relationship: " + e.getMessage());
        }
    }

    // ---- rows ----

    private long generatedCount(TableState t) {
        Desc g = t.desc.opt("generate");
        if (g == null) {
            return 0;
        }
        return rowsPerTable.containsKey(t.name) ? rowsPerTable.get(t.name)
                : rowsForAll != null ? rowsForAll : g.integer("count");
    }

    private void fill(TableState t, long seed) throws IOException {
        List<Desc> changes = t.desc.list("changes");
        long planned = t.desc.list("rows").size() + generatedCount(t);
        for (Desc c : changes) {
            if (c.has("insert")) {
                planned += c.get("insert").list().size();
            }
        }
        collectWanted(t, changes, planned);
        List<Object[]> batch = new ArrayList<>();
        for (Desc r : t.desc.list("rows")) {
            batch.add(literalRow(t, r));
            if (batch.size() == BATCH) {
                flush(t, batch);
            }
        }
        Desc g = t.desc.opt("generate");
        if (g != null) {
            g.object("count", "seed", "columns");
            long count = generatedCount(t);
            long tableSeed = g.integer("seed", seed);
            Generators.Gen[] gens = new Generators.Gen[t.columns.size()];
            Desc cols = g.get("columns").freeObject();
            for (String colName : cols.keys()) {
                ColumnDef col = t.column(cols, colName);
                gens[t.columns.indexOf(col)] = Generators.create(cols.get(colName), col, tableSeed, t.name);
            }
            long started = System.nanoTime();
            for (long i = 0; i < count; i++) {
                Object[] row = new Object[t.columns.size()];
                for (int k = 0; k < row.length; k++) {
                    row[k] = gens[k] == null ? null : gens[k].next(i);
                }
                batch.add(row);
                if (batch.size() == BATCH) {
                    flush(t, batch);
                }
            }
            flush(t, batch);
            if (count >= 100_000 && log != null) {
                log.printf(Locale.ROOT, "mdbgen: %s: %d rows in %.1f s%n", t.name, count,
                        (System.nanoTime() - started) / 1e9);
            }
        }
        flush(t, batch);
        applyChanges(t, changes);
    }

    private Object[] literalRow(TableState t, Desc r) {
        Object[] row = new Object[t.columns.size()];
        if (r.node.isArray()) {
            List<Desc> cells = r.list();
            if (cells.size() != row.length) {
                throw r.error("a row has " + row.length + " values (one per column), got " + cells.size());
            }
            for (int k = 0; k < row.length; k++) {
                row[k] = Values.literal(cells.get(k), t.columns.get(k));
            }
        } else {
            r.freeObject();
            for (String colName : r.keys()) {
                ColumnDef col = t.column(r, colName);
                row[t.columns.indexOf(col)] = Values.literal(r.member(colName), col);
            }
        }
        for (int k = 0; k < row.length; k++) {
            ColumnDef col = t.columns.get(k);
            if (row[k] != null && col.autoNumber() && !root.bool("allowAutoNumberInsert", false)) {
                throw r.error("\"" + col.name() + "\" is an AutoNumber: leave it null, or set allowAutoNumberInsert");
            }
        }
        return row;
    }

    private void flush(TableState t, List<Object[]> batch) throws IOException {
        if (batch.isEmpty()) {
            return;
        }
        int n = t.table.getColumnCount();
        List<Object[]> rows = new ArrayList<>(batch.size());
        for (Object[] b : batch) {
            Object[] row = new Object[n + 1];
            System.arraycopy(b, 0, row, 0, b.length);
            row[n] = ColumnImpl.RETURN_ROW_ID;
            rows.add(row);
        }
        try {
            t.table.addRows(rows);
        } catch (IOException | RuntimeException e) {
            throw new DescriptionException("tables[" + t.name + "]", "Jackcess refused rows "
                    + t.inserted + ".." + (t.inserted + batch.size() - 1) + ": " + e.getMessage(), e);
        }
        for (Object[] row : rows) {
            if (t.wanted.containsKey(t.inserted)) {
                t.wanted.put(t.inserted, (RowId) row[n]);
            }
            t.inserted++;
        }
        batch.clear();
    }

    /** Notes which inserted rows the changes refer to, so their row ids are kept. */
    private static void collectWanted(TableState t, List<Desc> changes, long planned) {
        for (Desc c : changes) {
            if (c.has("update")) {
                t.wanted.put(c.integer("update"), null);
            } else if (c.has("delete")) {
                for (long i : deleteTargets(c, planned)) {
                    t.wanted.put(i, null);
                }
            }
        }
    }

    /**
     * "delete": n, or "delete": {"every": k, "from": f, "to": l}: insertion indexes (0-based),
     * below the number of rows the table gets.
     */
    private static List<Long> deleteTargets(Desc c, long inserted) {
        Desc d = c.get("delete");
        List<Long> out = new ArrayList<>();
        if (d.node.isIntegralNumber()) {
            out.add(d.integer());
            return out;
        }
        d.object("every", "from", "to");
        long every = d.integer("every");
        long from = d.integer("from", 0);
        long to = d.integer("to", 1_000_000_000L);
        if (every < 1 || from < 0) {
            throw d.error("need every >= 1 and from >= 0");
        }
        for (long i = from; i <= to && i < inserted; i += every) {
            out.add(i);
        }
        return out;
    }

    private void applyChanges(TableState t, List<Desc> changes) throws IOException {
        for (Desc c : changes) {
            c.object("update", "set", "delete", "addColumn", "addIndex", "insert");
            if (c.has("update")) {
                long i = c.integer("update");
                Cursor cur = cursorAt(t, c.get("update"), i);
                Desc set = c.get("set").freeObject();
                Map<String, Object> values = new LinkedHashMap<>();
                for (String colName : set.keys()) {
                    ColumnDef col = t.column(set, colName);
                    values.put(col.name(), Values.literal(set.member(colName), col));
                }
                for (Map.Entry<String, Object> e : values.entrySet()) {
                    Column col = t.table.getColumn(e.getKey());
                    cur.setCurrentRowValue(col, e.getValue());
                }
            } else if (c.has("delete")) {
                for (long i : deleteTargets(c, t.inserted)) {
                    cursorAt(t, c.get("delete"), i).deleteCurrentRow();
                    t.wanted.put(i, null);
                }
            } else if (c.has("addColumn")) {
                Desc cs = c.get("addColumn");
                ColumnBuilder cb = columnBuilder(cs);
                try {
                    cb.addToTable(t.table);
                } catch (IllegalArgumentException e) {
                    throw cs.error("Jackcess refused the column: " + e.getMessage());
                }
                t.columns.add(columnDef(cs, cb));
            } else if (c.has("addIndex")) {
                Desc is = c.get("addIndex");
                try {
                    indexBuilder(is).addToTable(t.table);
                } catch (IllegalArgumentException e) {
                    throw is.error("Jackcess refused the index: " + e.getMessage());
                }
            } else if (c.has("insert")) {
                List<Object[]> batch = new ArrayList<>();
                for (Desc r : c.get("insert").list()) {
                    batch.add(literalRow(t, r));
                }
                flush(t, batch);
            } else {
                throw c.error("a change is one of update, delete, addColumn, addIndex, insert");
            }
        }
    }

    private static Cursor cursorAt(TableState t, Desc where, long index) throws IOException {
        RowId id = t.wanted.get(index);
        if (index < 0 || index >= t.inserted) {
            throw where.error("row " + index + " does not exist (" + t.inserted + " inserted)");
        }
        if (id == null) {
            throw where.error("row " + index + " was deleted");
        }
        Cursor cur = CursorBuilder.createCursor(t.table);
        if (!cur.findRow(Objects.requireNonNull(id))) {
            throw where.error("row " + index + " is gone");
        }
        return cur;
    }
}
