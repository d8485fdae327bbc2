package upsizer.mdbgen;

import com.fasterxml.jackson.core.JsonEncoding;
import com.fasterxml.jackson.core.JsonFactory;
import com.fasterxml.jackson.core.JsonGenerator;
import com.fasterxml.jackson.core.json.JsonWriteFeature;
import com.healthmarketscience.jackcess.Column;
import com.healthmarketscience.jackcess.DataType;
import com.healthmarketscience.jackcess.Database;
import com.healthmarketscience.jackcess.DatabaseBuilder;
import com.healthmarketscience.jackcess.DateTimeType;
import com.healthmarketscience.jackcess.Index;
import com.healthmarketscience.jackcess.PropertyMap;
import com.healthmarketscience.jackcess.Relationship;
import com.healthmarketscience.jackcess.Row;
import com.healthmarketscience.jackcess.Table;
import com.healthmarketscience.jackcess.TableMetaData;
import com.healthmarketscience.jackcess.crypt.CryptCodecProvider;
import com.healthmarketscience.jackcess.impl.ColumnImpl;
import com.healthmarketscience.jackcess.impl.DatabaseImpl;
import com.healthmarketscience.jackcess.impl.IndexData;
import com.healthmarketscience.jackcess.impl.IndexImpl;
import com.healthmarketscience.jackcess.impl.RelationshipImpl;
import com.healthmarketscience.jackcess.impl.TableImpl;
import com.healthmarketscience.jackcess.query.Query;
import java.io.BufferedOutputStream;
import java.io.IOException;
import java.io.OutputStream;
import java.lang.reflect.Method;
import java.math.BigDecimal;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.StandardCopyOption;
import java.time.LocalDateTime;
import java.time.ZoneOffset;
import java.util.ArrayList;
import java.util.Date;
import java.util.HashMap;
import java.util.HexFormat;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import java.util.TimeZone;
import java.util.TreeSet;

/**
 * Writes everything Jackcess reads from a .mdb as canonical JSON (format in README.md).
 * The output is ASCII: every other character is written as a JSON \\u escape of its UTF-16 unit.
 */
final class Dumper {
    static final int FORMAT_VERSION = 1;
    private static final HexFormat HEX = HexFormat.of();

    private final boolean userRowsOnly;
    private JsonGenerator g;
    private int depth;

    Dumper(boolean userRowsOnly) {
        this.userRowsOnly = userRowsOnly;
    }

    /** Dumps {@code in} to {@code out}, or to standard output when {@code out} is null. */
    void dump(Path in, Path out) throws IOException {
        if (!Files.isRegularFile(in)) {
            throw new IOException(in + ": no such file");
        }
        Path part = out == null ? null : out.toAbsolutePath().resolveSibling(out.getFileName() + ".part");
        try (OutputStream os = part == null ? nonClosing(System.out)
                : new BufferedOutputStream(Files.newOutputStream(part), 1 << 16)) {
            JsonFactory f = JsonFactory.builder().enable(JsonWriteFeature.ESCAPE_NON_ASCII).build();
            try (JsonGenerator gen = f.createGenerator(os, JsonEncoding.UTF8)) {
                g = gen;
                writeDatabase(in);
                g.writeRaw('\n');
            }
        } catch (IOException | RuntimeException e) {
            if (part != null) {
                Files.deleteIfExists(part);
            }
            throw e;
        }
        if (part != null) {
            Files.move(part, out, StandardCopyOption.REPLACE_EXISTING, StandardCopyOption.ATOMIC_MOVE);
        }
    }

    private static OutputStream nonClosing(OutputStream os) {
        return new BufferedOutputStream(os, 1 << 16) {
            @Override
            public void close() throws IOException {
                flush();
            }
        };
    }

    private void nl() throws IOException {
        g.writeRaw('\n');
        for (int i = 0; i < depth; i++) {
            g.writeRaw("  ");
        }
    }

    private void writeDatabase(Path in) throws IOException {
        byte[] page0 = HeaderPassword.readPage0(in);
        byte[] header = HeaderPassword.unmaskedHeader(page0);
        ByteBuffer hb = ByteBuffer.wrap(header).order(ByteOrder.LITTLE_ENDIAN);
        // Jet dates come back as java.util.Date subclasses that keep the stored bits; UTC keeps
        // the readable text free of daylight-saving gaps.
        try (Database db = new DatabaseBuilder(in.toFile()).setReadOnly(true)
                .setCodecProvider(new CryptCodecProvider()).setTimeZone(TimeZone.getTimeZone("UTC")).open()) {
            db.setDateTimeType(DateTimeType.DATE);
            db.setColumnOrder(Table.ColumnOrder.DATA);
            g.writeStartObject();
            depth = 1;
            nl();
            g.writeNumberField("mdbgenDump", FORMAT_VERSION);
            nl();
            g.writeObjectFieldStart("file");
            g.writeNumberField("jetVersion", page0[HeaderPassword.VERSION_OFFSET] == 1 ? 4 : page0[HeaderPassword.VERSION_OFFSET]);
            g.writeStringField("fileFormat", db.getFileFormat().name());
            g.writeNumberField("pageSize", HeaderPassword.PAGE_SIZE);
            g.writeNumberField("pages", Files.size(in) / HeaderPassword.PAGE_SIZE);
            g.writeStringField("databaseKey", String.format("%08x", hb.getInt(0x3E)));
            g.writeStringField("password", HeaderPassword.read(page0));
            String jp = db.getDatabasePassword();
            g.writeStringField("jackcessPassword", jp == null ? "" : jp);
            g.writeFieldName("creationDate");
            writeDateBits(Double.doubleToRawLongBits(hb.getDouble(HeaderPassword.CREATION_DATE_OFFSET)));
            g.writeNumberField("codePage", ((DatabaseImpl) db).getDefaultCodePage());
            g.writeStringField("sortOrder", String.valueOf(((DatabaseImpl) db).getDefaultSortOrder()));
            g.writeEndObject();
            nl();
            g.writeFieldName("databaseProperties");
            writeProperties(db.getDatabaseProperties());
            nl();
            g.writeFieldName("summaryProperties");
            writeProperties(db.getSummaryProperties());
            nl();
            g.writeFieldName("userDefinedProperties");
            writeProperties(db.getUserDefinedProperties());

            TreeSet<String> names = new TreeSet<>(db.getTableNames());
            TreeSet<String> system = new TreeSet<>(db.getSystemTableNames());
            names.addAll(system);
            Map<Integer, String> byPage = new HashMap<>();
            Map<String, Table> open = new HashMap<>();
            for (String name : names) {
                TableMetaData md = db.getTableMetaData(name);
                if (md != null && md.isLinked()) {
                    continue;
                }
                Table t = system.contains(name) ? db.getSystemTable(name) : db.getTable(name);
                if (t != null) {
                    open.put(name, t);
                    byPage.put(((TableImpl) t).getTableDefPageNumber(), name);
                }
            }
            nl();
            g.writeArrayFieldStart("tables");
            depth++;
            for (String name : names) {
                nl();
                Table t = open.get(name);
                if (t == null) {
                    TableMetaData md = db.getTableMetaData(name);
                    g.writeStartObject();
                    g.writeStringField("name", name);
                    g.writeBooleanField("linked", true);
                    g.writeStringField("linkedTableName", md == null ? null : md.getLinkedTableName());
                    g.writeStringField("linkedDbName", md == null ? null : md.getLinkedDbName());
                    g.writeEndObject();
                    continue;
                }
                writeTable((TableImpl) t, system.contains(name), byPage);
            }
            depth--;
            nl();
            g.writeEndArray();

            nl();
            g.writeArrayFieldStart("relationships");
            depth++;
            // the "system" list is every relationship, user tables' included
            List<Relationship> rels = new ArrayList<>(db.getSystemRelationships());
            rels.sort((a, b) -> a.getName().compareTo(b.getName()));
            for (Relationship r : rels) {
                nl();
                writeRelationship((RelationshipImpl) r);
            }
            depth--;
            nl();
            g.writeEndArray();

            nl();
            g.writeArrayFieldStart("queries");
            List<Query> queries;
            try {
                queries = new ArrayList<>(db.getQueries());
            } catch (IOException | RuntimeException e) {
                queries = List.of();
            }
            queries.sort((a, b) -> a.getName().compareTo(b.getName()));
            for (Query q : queries) {
                g.writeStartObject();
                g.writeStringField("name", q.getName());
                g.writeStringField("type", String.valueOf(q.getType()));
                g.writeEndObject();
            }
            g.writeEndArray();
            depth = 0;
            nl();
            g.writeEndObject();
        }
    }

    private void writeTable(TableImpl t, boolean system, Map<Integer, String> byPage) throws IOException {
        g.writeStartObject();
        g.writeStringField("name", t.getName());
        g.writeBooleanField("system", system);
        g.writeBooleanField("hidden", t.isHidden());
        g.writeNumberField("tableDefPage", t.getTableDefPageNumber());
        g.writeNumberField("rowCount", t.getRowCount());
        g.writeNumberField("maxColumnCount", t.getMaxColumnCount());
        g.writeFieldName("properties");
        writeProperties(t.getProperties());
        depth++;
        nl();
        g.writeArrayFieldStart("columns");
        depth++;
        List<ColumnImpl> cols = t.getColumns();
        for (ColumnImpl c : cols) {
            nl();
            writeColumn(c);
        }
        depth--;
        nl();
        g.writeEndArray();
        nl();
        g.writeArrayFieldStart("indexes");
        depth++;
        for (IndexImpl i : t.getIndexes()) {
            nl();
            writeIndex(i, byPage);
        }
        depth--;
        nl();
        g.writeEndArray();
        nl();
        if (system && userRowsOnly) {
            g.writeNullField("rows");
        } else {
            g.writeArrayFieldStart("rows");
            depth++;
            long n = 0;
            for (Row r : t) {
                nl();
                g.writeStartArray();
                for (ColumnImpl c : cols) {
                    writeValue(c.getType(), r.get(c.getName()));
                }
                g.writeEndArray();
                n++;
            }
            depth--;
            nl();
            g.writeEndArray();
            nl();
            g.writeNumberField("rowsRead", n);
        }
        depth--;
        nl();
        g.writeEndObject();
    }

    private void writeColumn(ColumnImpl c) throws IOException {
        g.writeStartObject();
        g.writeStringField("name", c.getName());
        g.writeStringField("type", c.getType().name());
        g.writeNumberField("typeCode", c.getType().getValue() & 0xFF);
        g.writeNumberField("index", c.getColumnIndex());
        g.writeNumberField("number", c.getColumnNumber());
        g.writeNumberField("displayIndex", c.getDisplayIndex());
        g.writeNumberField("length", c.getLength());
        g.writeNumberField("lengthInUnits", c.getLengthInUnits());
        if (c.getType() == DataType.NUMERIC) {
            g.writeNumberField("precision", c.getPrecision());
            g.writeNumberField("scale", c.getScale());
        }
        g.writeBooleanField("variableLength", c.isVariableLength());
        g.writeBooleanField("autoNumber", c.isAutoNumber());
        g.writeStringField("autoNumberType", c.isAutoNumber() ? c.getAutoNumberGenerator().getType().name() : null);
        g.writeBooleanField("compressedUnicode", c.isCompressedUnicode());
        g.writeBooleanField("hyperlink", c.isHyperlink());
        if (c.isVariableLength()) {
            g.writeNumberField("varIndex", c.getVarLenTableIndex());
        } else {
            g.writeNumberField("fixedOffset", c.getFixedDataOffset());
        }
        if (c.getType() == DataType.TEXT || c.getType() == DataType.MEMO) {
            g.writeStringField("sortOrder", String.valueOf(c.getTextSortOrder()));
        }
        g.writeFieldName("properties");
        writeProperties(c.getProperties());
        g.writeEndObject();
    }

    private void writeIndex(IndexImpl i, Map<Integer, String> byPage) throws IOException {
        IndexData d = i.getIndexData();
        g.writeStartObject();
        g.writeStringField("name", i.getName());
        g.writeNumberField("number", i.getIndexNumber());
        g.writeNumberField("dataNumber", d.getIndexDataNumber());
        g.writeArrayFieldStart("columns");
        for (Index.Column c : i.getColumns()) {
            g.writeStartObject();
            g.writeStringField("name", c.getName());
            g.writeBooleanField("ascending", c.isAscending());
            g.writeEndObject();
        }
        g.writeEndArray();
        g.writeBooleanField("primaryKey", i.isPrimaryKey());
        g.writeBooleanField("unique", i.isUnique());
        g.writeBooleanField("ignoreNulls", i.shouldIgnoreNulls());
        g.writeBooleanField("required", i.isRequired());
        g.writeBooleanField("foreignKey", i.isForeignKey());
        g.writeNumberField("indexFlags", i.getIndexFlags() & 0xFF);
        g.writeNumberField("dataFlags", d.getIndexFlags() & 0xFF);
        IndexImpl.ForeignKeyReference ref = i.getReference();
        if (ref == null) {
            g.writeNullField("reference");
        } else {
            g.writeObjectFieldStart("reference");
            g.writeBooleanField("primaryTable", ref.isPrimaryTable());
            g.writeStringField("otherTable", byPage.get(ref.getOtherTablePageNumber()));
            g.writeNumberField("otherIndexNumber", ref.getOtherIndexNumber());
            g.writeBooleanField("cascadeUpdates", ref.isCascadeUpdates());
            g.writeBooleanField("cascadeDeletes", ref.isCascadeDeletes());
            g.writeBooleanField("cascadeNullOnDelete", ref.isCascadeNullOnDelete());
            g.writeEndObject();
        }
        g.writeEndObject();
    }

    private void writeRelationship(RelationshipImpl r) throws IOException {
        g.writeStartObject();
        g.writeStringField("name", r.getName());
        g.writeBooleanField("system", ((TableImpl) r.getFromTable()).isSystem()
                || ((TableImpl) r.getToTable()).isSystem());
        writeSide("primary", r.getFromTable(), r.getFromColumns());
        writeSide("foreign", r.getToTable(), r.getToColumns());
        g.writeNumberField("flags", r.getFlags());
        g.writeBooleanField("referentialIntegrity", r.hasReferentialIntegrity());
        g.writeBooleanField("cascadeUpdates", r.cascadeUpdates());
        g.writeBooleanField("cascadeDeletes", r.cascadeDeletes());
        g.writeBooleanField("cascadeNullOnDelete", r.cascadeNullOnDelete());
        g.writeBooleanField("oneToOne", r.isOneToOne());
        g.writeStringField("join", r.isLeftOuterJoin() ? "left" : r.isRightOuterJoin() ? "right" : "inner");
        g.writeEndObject();
    }

    private void writeSide(String field, Table t, List<Column> cols) throws IOException {
        g.writeObjectFieldStart(field);
        g.writeStringField("table", t.getName());
        g.writeArrayFieldStart("columns");
        for (Column c : cols) {
            g.writeString(c.getName());
        }
        g.writeEndArray();
        g.writeEndObject();
    }

    private void writeProperties(PropertyMap props) throws IOException {
        g.writeStartArray();
        for (PropertyMap.Property p : props) {
            g.writeStartObject();
            g.writeStringField("name", p.getName());
            g.writeStringField("type", p.getType().name());
            g.writeBooleanField("ddl", p.isDdl());
            g.writeFieldName("value");
            writeValue(p.getType(), p.getValue());
            g.writeEndObject();
        }
        g.writeEndArray();
    }

    /** One value, encoded by its Jet type; see README.md, "Values". */
    void writeValue(DataType type, Object v) throws IOException {
        if (v == null) {
            g.writeNull();
            return;
        }
        switch (type) {
            case BOOLEAN:
                g.writeBoolean((Boolean) v);
                return;
            case BYTE:
                g.writeNumber(((Number) v).intValue() & 0xFF);
                return;
            case INT:
            case LONG:
            case COMPLEX_TYPE:
                g.writeNumber(((Number) v).longValue());
                return;
            case MONEY:
                g.writeString(((BigDecimal) v).setScale(4).unscaledValue().toString());
                return;
            case FLOAT:
                g.writeString(String.format("%08x", Float.floatToRawIntBits((Float) v)));
                return;
            case DOUBLE:
                g.writeString(String.format("%016x", Double.doubleToRawLongBits((Double) v)));
                return;
            case NUMERIC:
                g.writeString(((BigDecimal) v).toPlainString());
                return;
            case SHORT_DATE_TIME:
                writeDateBits(dateBits(v));
                return;
            case TEXT:
            case MEMO:
            case GUID:
                g.writeString(v.toString());
                return;
            default:
                if (v instanceof byte[]) {
                    g.writeString(HEX.formatHex((byte[]) v));
                } else {
                    g.writeString(v.getClass().getSimpleName() + ":" + v);
                }
        }
    }

    private void writeDateBits(long bits) throws IOException {
        g.writeStartObject();
        g.writeStringField("bits", String.format("%016x", bits));
        g.writeStringField("iso", JetDate.iso(Double.longBitsToDouble(bits)));
        g.writeEndObject();
    }

    private static Method dateBitsMethod;

    /**
     * The stored bits of a date Jackcess read. Jackcess's Date values carry them (getDateBits);
     * anything else is converted from its milliseconds (UTC), which cannot show sub-millisecond bits.
     */
    static synchronized long dateBits(Object v) {
        try {
            if (dateBitsMethod == null || dateBitsMethod.getDeclaringClass() != v.getClass()) {
                dateBitsMethod = v.getClass().getMethod("getDateBits");
                dateBitsMethod.setAccessible(true);
            }
            return (Long) dateBitsMethod.invoke(v);
        } catch (ReflectiveOperationException | RuntimeException e) {
            if (v instanceof Date) {
                LocalDateTime t = LocalDateTime.ofEpochSecond(Math.floorDiv(((Date) v).getTime(), 1000L),
                        (int) Math.floorMod(((Date) v).getTime(), 1000L) * 1_000_000, ZoneOffset.UTC);
                return Double.doubleToRawLongBits(JetDate.fromLocalDateTime(t));
            }
            if (v instanceof LocalDateTime) {
                return Double.doubleToRawLongBits(JetDate.fromLocalDateTime((LocalDateTime) v));
            }
            throw new IllegalStateException(String.format(Locale.ROOT, "no date bits in %s", v.getClass()), e);
        }
    }
}
