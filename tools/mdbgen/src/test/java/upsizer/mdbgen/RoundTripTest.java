package upsizer.mdbgen;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static upsizer.mdbgen.TestSupport.q;

import com.fasterxml.jackson.databind.JsonNode;
import java.io.IOException;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

/** What goes in through a description comes out of the dump, exactly. */
class RoundTripTest {
    @TempDir
    Path dir;

    private static final String TYPES = q("""
        {'tables': [{'name': 'T', 'columns': [
          {'name': 'ID', 'type': 'LONG', 'autoNumber': true},
          {'name': 'B', 'type': 'BYTE'}, {'name': 'I', 'type': 'INT'}, {'name': 'L', 'type': 'LONG'},
          {'name': 'M', 'type': 'MONEY'}, {'name': 'F', 'type': 'FLOAT'}, {'name': 'D', 'type': 'DOUBLE'},
          {'name': 'DT', 'type': 'SHORT_DATE_TIME'}, {'name': 'S', 'type': 'TEXT', 'size': 5},
          {'name': 'MM', 'type': 'MEMO'}, {'name': 'Y', 'type': 'BOOLEAN'}, {'name': 'G', 'type': 'GUID'},
          {'name': 'N', 'type': 'NUMERIC', 'precision': 28, 'scale': 4}, {'name': 'O', 'type': 'OLE'},
          {'name': 'BI', 'type': 'BINARY', 'size': 4}],
         'rows': [
          [null, 255, -32768, -2147483648, '-922337203685477.5808', '0x7fc00001', '-0', '0100-01-01',
           '', '', true, '6b29fc40-ca47-1067-b31d-00dd010662da', '-999999999999999999999999.9999', '', '00ff'],
          [null, 0, 32767, 2147483647, '922337203685477.5807', 0.1, 0.1, '9999-12-31T23:59:59.999',
           'ÄΩ😀', {'repeat': 'ab', 'length': 5}, false, '{00000000-0000-0000-0000-000000000000}', '0.0001', '01', ''],
          [null, null, null, null, null, null, null, null, null, null, false, null, null, null, null],
          {'DT': {'jet': -1.25}}, {'DT': {'bits': '0xc0e1000000000000'}}, {'DT': '1899-12-30'}]}]}
        """);

    @Test
    void everyTypeKeepsItsExactValue() throws IOException {
        JsonNode rows = TestSupport.table(TestSupport.dump(TestSupport.build(dir, "types", TYPES)), "T").get("rows");
        assertEquals(q("""
            [1,255,-32768,-2147483648,'-9223372036854775808','7fc00001','8000000000000000',\
            {'bits':'c124103400000000','iso':'0100-01-01T00:00:00.000'},'','',true,\
            '{6B29FC40-CA47-1067-B31D-00DD010662DA}','-999999999999999999999999.9999','','00ff']"""),
                rows.get(0).toString());
        assertEquals(q("""
            [2,0,32767,2147483647,'9223372036854775807','3dcccccd','3fb999999999999a',\
            {'bits':'41469240ffffffe7','iso':'9999-12-31T23:59:59.999'},'ÄΩ😀','ababa',false,\
            '{00000000-0000-0000-0000-000000000000}','0.0001','01','']"""), rows.get(1).toString());
        assertEquals("[3,null,null,null,null,null,null,null,null,null,false,null,null,null,null]",
                rows.get(2).toString());
        assertEquals(q("{'bits':'bff4000000000000','iso':'1899-12-29T06:00:00.000'}"), rows.get(3).get(7).toString());
        assertEquals(q("{'bits':'c0e1000000000000','iso':'1804-09-03T00:00:00.000'}"), rows.get(4).get(7).toString());
        assertEquals(q("{'bits':'0000000000000000','iso':'1899-12-30T00:00:00.000'}"), rows.get(5).get(7).toString());
    }

    @Test
    void dumpIsAsciiAndEscapesEveryOtherCharacter() throws IOException {
        Path mdb = TestSupport.build(dir, "ascii", TYPES);
        new Dumper(true).dump(mdb, dir.resolve("ascii.out"));
        String text = Files.readString(dir.resolve("ascii.out"));
        assertTrue(text.chars().allMatch(c -> c < 0x80));
        assertTrue(text.contains("\"\\u00C4\\u03A9\\uD83D\\uDE00\""), "UTF-16 units escaped one by one");
    }

    @Test
    void indexesAndRelationshipsKeepTheirFlags() throws IOException {
        JsonNode dump = TestSupport.dump(TestSupport.build(dir, "keys", q("""
            {'tables': [
              {'name': 'Parent', 'columns': [{'name': 'A', 'type': 'LONG'}, {'name': 'B', 'type': 'TEXT', 'size': 10}],
               'indexes': [{'name': 'PrimaryKey', 'primaryKey': true, 'columns': ['A', 'B']},
                           {'name': 'B desc, with blanks', 'unique': true, 'ignoreNulls': true, 'required': true,
                            'columns': [{'name': 'B', 'descending': true}]}]},
              {'name': 'Child', 'columns': [{'name': 'PA', 'type': 'LONG'}, {'name': 'PB', 'type': 'TEXT', 'size': 10}]}],
             'relations': [{'name': 'ParentChild', 'primary': {'table': 'Parent', 'columns': ['A', 'B']},
                            'foreign': {'table': 'Child', 'columns': ['PA', 'PB']},
                            'referentialIntegrity': true, 'cascadeDeletes': true}]}
            """)));
        JsonNode idx = TestSupport.table(dump, "Parent").get("indexes");
        assertEquals(q("[{'name':'A','ascending':true},{'name':'B','ascending':true}]"), idx.get(0).get("columns").toString());
        assertTrue(idx.get(0).get("primaryKey").asBoolean());
        JsonNode desc = idx.get(1);
        assertEquals("B desc, with blanks", desc.get("name").asText());
        assertEquals("[false, true, true, true]", List.of(desc.get("columns").get(0).get("ascending"), desc.get("unique"),
                desc.get("ignoreNulls"), desc.get("required")).toString());
        JsonNode fk = TestSupport.table(dump, "Child").get("indexes").get(0);
        assertTrue(fk.get("foreignKey").asBoolean());
        assertEquals(q("{'primaryTable':false,'otherTable':'Parent','otherIndexNumber':2,'cascadeUpdates':false,"
                + "'cascadeDeletes':true,'cascadeNullOnDelete':false}"), fk.get("reference").toString());
        JsonNode rel = dump.get("relationships").get(0);
        assertEquals(q("{'table':'Child','columns':['PA','PB']}"), rel.get("foreign").toString());
        assertEquals("[true, false, true]", List.of(rel.get("referentialIntegrity"), rel.get("cascadeUpdates"),
                rel.get("cascadeDeletes")).toString());
    }

    /**
     * Row slots that point to an overflow row, over the data pages of a table: flag 0x4000 without
     * 0x8000 (a deleted row carries both; the moved row itself only 0x8000).
     */
    private static int overflowSlots(Path mdb, int tableDefPage) throws IOException {
        ByteBuffer file = ByteBuffer.wrap(Files.readAllBytes(mdb)).order(ByteOrder.LITTLE_ENDIAN);
        int slots = 0;
        for (int p = 1; p < file.capacity() / 4096; p++) {
            int base = p * 4096;
            if (file.get(base) == 1 && file.getInt(base + 4) == tableDefPage) {
                for (int r = 0; r < file.getShort(base + 12); r++) {
                    slots += (file.getShort(base + 14 + 2 * r) & 0xC000) == 0x4000 ? 1 : 0;
                }
            }
        }
        return slots;
    }

    @Test
    void changesDeleteUpdateAndOverflowKeepPhysicalOrder() throws IOException {
        // Seven rows of 255 uncompressed CJK characters fill a page; growing row 0 by 510 bytes
        // no longer fits, so Jet keeps a pointer in the old slot and the row stays first in a scan.
        Path mdb = TestSupport.build(dir, "changes", q("""
            {'tables': [{'name': 'T', 'columns': [{'name': 'N', 'type': 'LONG'}, {'name': 'S', 'type': 'TEXT'}],
              'generate': {'count': 7, 'columns': {'N': {'kind': 'sequence', 'start': 0},
                                                   'S': {'kind': 'text', 'length': 255, 'alphabet': 'cjk'}}},
              'changes': [{'addColumn': {'name': 'Extra', 'type': 'TEXT', 'size': 255, 'compressedUnicode': false}},
                          {'update': 0, 'set': {'Extra': {'repeat': 'e', 'length': 255}}},
                          {'delete': {'every': 2, 'from': 1}}, {'insert': [{'N': 7}]}]}]}
            """));
        JsonNode t = TestSupport.table(TestSupport.dump(mdb), "T");
        List<String> seen = new ArrayList<>();
        for (JsonNode r : t.get("rows")) {
            seen.add(r.get(0).asText() + (r.get(2).isNull() ? "" : "+" + r.get(2).asText().length()));
        }
        assertEquals(List.of("0+255", "2", "4", "6", "7"), seen);
        assertEquals(1, overflowSlots(mdb, t.get("tableDefPage").asInt()));
    }

    @Test
    void generatedRowsDependOnTheDescriptionOnly() throws IOException {
        String desc = q("""
            {'seed': 5, 'tables': [{'name': 'G', 'columns': [{'name': 'T', 'type': 'TEXT', 'size': 20},
              {'name': 'D', 'type': 'SHORT_DATE_TIME'}, {'name': 'X', 'type': 'DOUBLE'}],
              'generate': {'count': 50, 'columns': {
                'T': {'kind': 'text', 'maxLength': 20, 'alphabet': 'mixed', 'nulls': 0.2, 'empties': 0.2},
                'D': {'kind': 'date', 'from': '0100-01-01', 'to': '9999-12-31T23:59:59.999', 'resolution': 'millisecond'},
                'X': {'kind': 'double', 'min': -1, 'max': 1}}}}]}
            """);
        JsonNode a = TestSupport.table(TestSupport.dump(TestSupport.build(dir, "a", desc)), "G").get("rows");
        JsonNode b = TestSupport.table(TestSupport.dump(TestSupport.build(dir, "b", desc)), "G").get("rows");
        assertEquals(a, b);
        JsonNode c = TestSupport.table(TestSupport.dump(TestSupport.build(dir, "c", desc, 60L)), "G").get("rows");
        assertEquals(60, c.size());
        assertEquals(a.get(49), c.get(49), "--rows extends the same sequence");
        int nulls = 0;
        int empties = 0;
        for (JsonNode r : a) {
            nulls += r.get(0).isNull() ? 1 : 0;
            empties += "".equals(r.get(0).textValue()) ? 1 : 0;
            JsonNode d = r.get(1);
            assertEquals(d.get("iso").asText(), JetDate.iso(Double.longBitsToDouble(Long.parseUnsignedLong(d.get("bits").asText(), 16))));
        }
        assertTrue(nulls > 0 && empties > 0 && nulls + empties < 50, nulls + " nulls, " + empties + " empties");
        assertNotEquals(a, TestSupport.table(TestSupport.dump(TestSupport.build(dir, "d", desc.replace("\"seed\": 5", "\"seed\": 6"))), "G").get("rows"));
    }

    @Test
    void encodedFileReadsLikeThePlainOne() throws IOException {
        String plain = TYPES;
        String encoded = TYPES.replaceFirst("\\{", "{\"encodingKey\": \"a7b773e0\", ");
        Path p = TestSupport.build(dir, "plain", plain);
        Path e = TestSupport.build(dir, "encoded", encoded);
        JsonNode pd = TestSupport.dump(p);
        JsonNode ed = TestSupport.dump(e);
        assertEquals("00000000", pd.get("file").get("databaseKey").asText());
        assertEquals("a7b773e0", ed.get("file").get("databaseKey").asText());
        assertEquals(TestSupport.table(pd, "T"), TestSupport.table(ed, "T"));
        String raw = new String(Files.readAllBytes(e), java.nio.charset.StandardCharsets.ISO_8859_1);
        assertTrue(new String(Files.readAllBytes(p), java.nio.charset.StandardCharsets.ISO_8859_1).contains("ababa"));
        assertFalse(raw.contains("ababa"), "no page after page 0 is left in the clear");
    }

    @Test
    void badDescriptionsNameThePlace() throws IOException {
        String[][] cases = {
            {"{'tables': [{'name': 'T', 'colums': []}]}", "bad.tables[0]: unknown key(s) [colums]; allowed: [changes, columns, generate, indexes, name, properties, rows]"},
            {"{'tables': [{'name': 'T', 'columns': [{'name': 'S', 'type': 'TEXT', 'size': 2}], 'rows': [['abc']]}]}",
             "bad.tables[0].rows[0][0]: text of 3 characters does not fit TEXT(2)"},
            {"{'tables': [{'name': 'T', 'columns': [{'name': 'A', 'type': 'LONG', 'autoNumber': true}], 'rows': [[5]]}]}",
             "bad.tables[0].rows[0]: \"A\" is an AutoNumber: leave it null, or set allowAutoNumberInsert"},
            {"{'tables': [{'name': 'T', 'columns': [{'name': 'M', 'type': 'MONEY'}], 'rows': [['0.00001']]}]}",
             "bad.tables[0].rows[0][0]: MONEY keeps 4 decimal places; 0.00001 would be rounded"},
            {"{'tables': [{'name': 'T', 'columns': [{'name': 'B', 'type': 'BYTE'}], 'rows': [[256]]}]}",
             "bad.tables[0].rows[0][0]: BYTE holds 0..255, got 256"},
        };
        for (String[] c : cases) {
            DescriptionException e = assertThrows(DescriptionException.class, () -> TestSupport.build(dir, "bad", q(c[0])));
            assertEquals(c[1], e.getMessage());
            assertFalse(Files.exists(dir.resolve("bad.mdb")) || Files.exists(dir.resolve("bad.mdb.part")),
                    "a failed build leaves no file");
        }
    }
}
