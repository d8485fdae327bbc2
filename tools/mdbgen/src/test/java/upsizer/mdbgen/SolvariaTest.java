package upsizer.mdbgen;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.healthmarketscience.jackcess.Column;
import com.healthmarketscience.jackcess.DataType;
import com.healthmarketscience.jackcess.Database;
import com.healthmarketscience.jackcess.DatabaseBuilder;
import com.healthmarketscience.jackcess.Index;
import com.healthmarketscience.jackcess.PropertyMap;
import com.healthmarketscience.jackcess.Relationship;
import com.healthmarketscience.jackcess.Row;
import com.healthmarketscience.jackcess.Table;
import java.io.IOException;
import java.nio.file.Path;
import java.time.LocalDateTime;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.TreeSet;
import org.junit.jupiter.api.BeforeAll;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

/** Builds the Solvaria-shaped databases and reads them back through Jackcess. */
class SolvariaTest {
    static final Path CATALOGUE = Path.of(System.getProperty("mdbgen.catalogue", "../../schema/catalogue.tsv"));

    @TempDir
    static Path dir;

    static CatalogueFile cat;
    static Path small;

    @BeforeAll
    static void buildSmall() throws IOException {
        cat = CatalogueFile.read(CATALOGUE);
        small = build("none", 200);
    }

    static Path build(String variant, long rows) throws IOException {
        Path out = dir.resolve("solvaria-" + variant + ".mdb");
        new Builder(new Desc(Solvaria.describe(cat, rows, variant), "solvaria"), null, Map.of(), null).build(out);
        return out;
    }

    static Database open(Path mdb) throws IOException {
        return new DatabaseBuilder(mdb.toFile()).setReadOnly(true).open();
    }

    @Test
    void catalogueCountsAreTheSuites() {
        assertEquals(111, cat.tables.size());
        assertEquals(1073, cat.fieldCount());
        assertEquals(230, cat.indexCount());
        assertEquals(72, cat.relations.size());
    }

    @Test
    void passwordIsTheSuitesAndReadsBackByBothReaders() throws IOException {
        assertEquals("brnzolvet52", HeaderPassword.read(small));
        try (Database db = open(small)) {
            assertEquals("brnzolvet52", db.getDatabasePassword());
        }
    }

    private static DataType expectedType(CatalogueFile.Field f) {
        return switch (f.type()) {
            case "I2" -> DataType.INT;
            case "I4" -> DataType.LONG;
            case "F8" -> DataType.DOUBLE;
            case "CUR" -> DataType.MONEY;
            case "BOOL" -> DataType.BOOLEAN;
            case "GUID" -> DataType.GUID;
            case "MEMO" -> DataType.MEMO;
            case "DATE" -> DataType.SHORT_DATE_TIME;
            default -> DataType.TEXT;
        };
    }

    @Test
    void systemTablesHoldTheCataloguesColumnsAndIndexes() throws IOException {
        int fields = 0;
        int indexes = 0;
        try (Database db = open(small)) {
            for (CatalogueFile.Table t : cat.tables) {
                Table jt = db.getTable(t.name());
                assertNotNull(jt, t.name());
                List<? extends Column> cols = jt.getColumns();
                assertEquals(t.fields().size(), cols.size(), t.name());
                for (int k = 0; k < cols.size(); k++) {
                    CatalogueFile.Field f = t.fields().get(k);
                    Column c = cols.get(k);
                    String where = t.name() + "." + f.name();
                    assertEquals(f.name(), c.getName(), where);
                    assertEquals(expectedType(f), c.getType(), where);
                    if (f.type().equals("V")) {
                        assertEquals(f.size() * 2, c.getLength(), where);
                    }
                    assertEquals(f.mark().equals("A"), c.isAutoNumber(), where);
                    PropertyMap p = c.getProperties();
                    boolean required = f.mark().startsWith("R");
                    assertEquals(required, Boolean.TRUE.equals(p.getValue(PropertyMap.REQUIRED_PROP)), where);
                    if (f.type().equals("V")) {
                        boolean zeroLength = f.mark().equals("Rz") || f.mark().isEmpty();
                        assertEquals(zeroLength, p.getValue(PropertyMap.ALLOW_ZERO_LEN_PROP), where);
                    }
                    assertEquals(f.defaultValue(), p.getValue(PropertyMap.DEFAULT_VALUE_PROP), where);
                    fields++;
                }
                List<Index> own = new ArrayList<>();
                for (Index i : jt.getIndexes()) {
                    if (!i.isForeignKey()) {
                        own.add(i);
                    }
                }
                assertEquals(t.indexes().size(), own.size(), t.name());
                for (CatalogueFile.Index ci : t.indexes()) {
                    Index i = jt.getIndex(ci.name());
                    String where = t.name() + "." + ci.name();
                    List<String> items = new ArrayList<>();
                    for (Index.Column c : i.getColumns()) {
                        items.add((c.isAscending() ? "+" : "-") + c.getName());
                    }
                    assertEquals(ci.fields(), String.join(";", items), where);
                    assertEquals((ci.flags() & 1) != 0, i.isPrimaryKey(), where);
                    assertEquals((ci.flags() & 5) != 0, i.isUnique(), where);
                    indexes++;
                }
            }
        }
        assertEquals(1073, fields);
        assertEquals(230, indexes);
    }

    @Test
    void cascadingRelationsAreEnforcedAndPlainReferencesAbsent() throws IOException {
        Map<String, CatalogueFile.Relation> byName = new HashMap<>();
        for (CatalogueFile.Relation r : cat.relations) {
            byName.put(r.name(), r);
        }
        Set<String> seen = new TreeSet<>();
        try (Database db = open(small)) {
            for (Relationship rel : db.getRelationships()) {
                CatalogueFile.Relation r = byName.get(rel.getName());
                assertNotNull(r, rel.getName());
                seen.add(rel.getName());
                assertEquals(r.relatedTable(), rel.getFromTable().getName(), rel.getName());
                assertEquals(r.table(), rel.getToTable().getName(), rel.getName());
                assertEquals(r.relatedFields(), rel.getFromColumns().stream().map(Column::getName).toList());
                assertEquals(r.fields(), rel.getToColumns().stream().map(Column::getName).toList());
                assertTrue(rel.hasReferentialIntegrity(), rel.getName());
                assertEquals(r.cascadeDelete(), rel.cascadeDeletes(), rel.getName());
                assertEquals(r.cascadeUpdate(), rel.cascadeUpdates(), rel.getName());
            }
        }
        assertEquals(62, seen.size());
        assertFalse(seen.contains("CLASSIDB_ELENCO")); // cascades nothing
        assertTrue(seen.contains("DB_ELENCODB_DOC_LINK") && seen.contains("DB_ELENCODB_DOC_LINK1"));
        assertTrue(seen.contains("TipoElabDefFCom"));
    }

    @Test
    void rowsDriveTheConversion() throws IOException {
        try (Database db = open(small)) {
            assertEquals(1, db.getTable("QZSYSTEM").getRowCount());
            assertEquals("Comune di Valdorsa - archivio documentale",
                    db.getTable("QZSYSTEM").iterator().next().getString("DESCRIZIONE"));
            List<String> listed = new ArrayList<>();
            for (Row r : db.getTable("DB_ELENCO")) {
                listed.add(r.getString("SYS_SERIALE"));
                assertFalse(r.getString("ARCHIVIO").isEmpty());
            }
            assertEquals(List.of("D_PROTOCOLLO", "D_FATTURE", "D_CONTRATTI", "2019_CORRISP", "D_RIMOSSO"), listed);
            assertNull(db.getTable("D_RIMOSSO"));
            assertNotNull(db.getTable("D_BOZZE")); // present, not listed
            assertEquals(200, db.getTable("D_PROTOCOLLO").getRowCount());
            assertEquals(50, db.getTable("D_FATTURE").getRowCount());
            assertEquals(20, db.getTable("D_CONTRATTI").getRowCount());
            assertEquals(10, db.getTable("2019_CORRISP").getRowCount());
            assertEquals(2, db.getTable("DB_DIZIONARIO").getRowCount());
            for (Row r : db.getTable("DB_DIZIONARIO")) {
                assertNotNull(db.getTable(r.getString("NOME_TABELLA")), r.getString("NOME_TABELLA"));
            }
            assertEquals(3, db.getTable("UTENTI").getRowCount());
            assertEquals(3, db.getTable("UTENTE_PERMESSI").getRowCount());

            Table archive = db.getTable("D_PROTOCOLLO");
            Column id = archive.getColumn("SYS_RECORD");
            assertTrue(id.isAutoNumber());
            Index key = archive.getPrimaryKeyIndex();
            assertEquals("SYS_RECORD", key.getColumns().get(0).getName());
            assertTrue(archive.getIndex("CODICE").isUnique());
            assertFalse(archive.getIndex("DATA_DOC").getColumns().get(0).isAscending());
            assertEquals(2, archive.getIndex("NUMERO_DATA").getColumns().size());
            int k = 1;
            Set<String> codes = new TreeSet<>();
            for (Row r : archive) {
                assertEquals(k++, r.getInt("SYS_RECORD"));
                codes.add(r.getString("CODICE"));
            }
            assertEquals(200, codes.size());
        }
    }

    @Test
    void rowsScaleAndTheSameRequestGivesTheSameRows() throws IOException {
        Path a = build("none", 40);
        try (Database db = open(a); Database s = open(small)) {
            assertEquals(40, db.getTable("D_PROTOCOLLO").getRowCount());
            assertEquals(10, db.getTable("D_FATTURE").getRowCount());
            // more rows extend the sequence: the first 40 are those of the larger file
            var big = s.getTable("D_PROTOCOLLO").iterator();
            for (Row r : db.getTable("D_PROTOCOLLO")) {
                Row o = big.next();
                assertEquals(o.getString("CODICE"), r.getString("CODICE"));
                assertEquals(o.get("DATA_DOC"), r.get("DATA_DOC"));
            }
        }
    }

    private static int keyBytes(Table t, Index i) {
        int sum = 0;
        for (Index.Column c : i.getColumns()) {
            Column col = t.getColumn(c.getName());
            sum += col.getType() == DataType.BOOLEAN ? 1 : col.getLength();
        }
        return sum;
    }

    @Test
    void findingVariantsCarryExactlyTheirFinding() throws IOException {
        try (Database db = open(build("dates", 0))) {
            Table t = db.getTable("D_ANOMALIE");
            List<LocalDateTime> before = new ArrayList<>();
            boolean sysOld = false;
            for (Row r : t) {
                LocalDateTime d = r.getLocalDateTime("DATA_DOC");
                if (d != null && d.getYear() < 1753) {
                    before.add(d);
                }
                LocalDateTime s = r.getLocalDateTime("SYS_DATAINS");
                sysOld |= s != null && s.getYear() < 1753;
            }
            assertEquals(List.of(LocalDateTime.of(1700, 3, 15, 0, 0), LocalDateTime.of(1752, 12, 31, 23, 59, 59)),
                    before);
            assertTrue(sysOld);
            assertEquals(0, db.getTable("D_PROTOCOLLO").getRowCount());
            boolean listed = false;
            for (Row r : db.getTable("DB_ELENCO")) {
                listed |= r.getString("SYS_SERIALE").equals("D_ANOMALIE");
            }
            assertTrue(listed);
        }
        try (Database db = open(build("nullkey", 0))) {
            Table t = db.getTable("D_ANOMALIE");
            assertEquals("CHIAVE", t.getPrimaryKeyIndex().getColumns().get(0).getName());
            List<String> keys = new ArrayList<>();
            for (Row r : t) {
                keys.add(r.getString("CHIAVE"));
            }
            assertEquals(java.util.Arrays.asList("K1", null, "K3"), keys);
        }
        try (Database db = open(build("memoindex", 0))) {
            Table t = db.getTable("D_ANOMALIE");
            assertEquals(DataType.MEMO, t.getColumn(t.getIndex("NOTE").getColumns().get(0).getName()).getType());
        }
        for (String v : List.of("index900", "index901")) {
            try (Database db = open(build(v, 0))) {
                Table t = db.getTable("D_ANOMALIE");
                assertEquals(v.equals("index900") ? 900 : 901, keyBytes(t, t.getIndex("LUNGO")), v);
                assertEquals(2, t.getRowCount());
            }
        }
        try (Database db = open(small)) {
            assertNull(db.getTable("D_ANOMALIE"));
        }
    }

    @Test
    void refusals() {
        DescriptionException e = assertThrows(DescriptionException.class, () -> Solvaria.describe(cat, 1, "bogus"));
        assertTrue(e.getMessage().startsWith("--variant: unknown variant \"bogus\""), e.getMessage());
        assertThrows(DescriptionException.class, () -> Solvaria.describe(cat, -1, "none"));
        e = assertThrows(DescriptionException.class,
                () -> CatalogueFile.parse("table\tT\nfield\tF\tV300\n", "c.tsv"));
        assertEquals("c.tsv:2: text size of V300 is not 1..255", e.getMessage());
        e = assertThrows(DescriptionException.class,
                () -> CatalogueFile.parse("field\tF\tI4\n", "c.tsv"));
        assertEquals("c.tsv:1: a field before any table", e.getMessage());
        e = assertThrows(DescriptionException.class,
                () -> CatalogueFile.parse("table\tT\nfield\tF\tI4\tX\n", "c.tsv"));
        assertEquals("c.tsv:2: unknown mark X", e.getMessage());
        e = assertThrows(DescriptionException.class,
                () -> CatalogueFile.parse("relation\tR\tA\tf\tB\tg\tsometimes\n", "c.tsv"));
        assertEquals("c.tsv:1: unknown cascade sometimes", e.getMessage());
        // an index over a field the table does not have is caught before anything is written
        CatalogueFile bad = CatalogueFile.parse("table\tT\nfield\tF\tI4\nindex\tX\t+G\t0\n", "c.tsv");
        e = assertThrows(DescriptionException.class, () -> Solvaria.describe(bad, 1, "none"));
        assertEquals("T.X: no field G", e.getMessage());
    }
}
