#!/usr/bin/env python3
"""Compares what mdb-export (mdbtools) prints with an mdbgen dump of the same .mdb.

usage: compare-mdbtools.py <file.mdb> <file.dump.json>

Prints, per user table, how many cells disagree and of what kind, with one example each. Used
to keep the "What mdbtools makes of the outputs" section of README.md honest; it is a survey,
not a test (mdbtools is wrong in known ways).
"""
import collections
import csv
import io
import json
import re
import struct
import subprocess
import sys

csv.field_size_limit(1 << 30)
ASTRAL = re.compile('[\U00010000-\U0010ffff]')


def expected(value, ctype):
    """The dump's value in the form mdb-export prints, or None for NULL."""
    if value is None:
        return None
    if ctype == 'SHORT_DATE_TIME':
        return value['iso'][:19] if value['iso'] else value['bits']
    if ctype == 'MONEY':
        n = int(value)
        return '%s%d.%04d' % ('-' if n < 0 else '', abs(n) // 10000, abs(n) % 10000)
    if ctype == 'DOUBLE':
        return struct.unpack('>d', bytes.fromhex(value))[0]
    if ctype == 'FLOAT':
        return struct.unpack('>f', bytes.fromhex(value))[0]
    if ctype == 'BOOLEAN':
        return '1' if value else '0'
    return value if isinstance(value, str) else str(value)


def kind(printed, want, ctype):
    """None when they agree, else a short name for the disagreement."""
    if want is None:
        return None if printed == '' else 'NULL printed as text'
    if isinstance(want, float):
        if want != want:
            return None if printed.lower().startswith('nan') else 'NaN'
        try:
            got = float(printed)
        except ValueError:
            return 'unreadable number'
        if got == want:
            return None
        return 'not exact' if abs(got - want) <= abs(want) * 1e-6 else 'wrong number'
    if ctype in ('OLE', 'BINARY'):
        return None if printed.lower() == want.lower() else ('cut at a zero byte' if want.lower().startswith(printed.lower()) else 'binary differs')
    if ctype == 'NUMERIC':
        return None if printed and float(printed) == float(want) else 'numeric differs'
    if printed == want:
        return None
    if want == '':
        return '"" printed as NULL' if printed == '' else 'text differs'
    if ctype == 'SHORT_DATE_TIME':
        return 'date (%s for %s)' % (printed, want)
    if printed == ASTRAL.sub('??', want):
        return 'non-BMP characters as ??'
    if want.startswith(printed):
        return 'cut at %d characters' % len(printed)
    return 'text differs'


def main(mdb, dump_file):
    dump = json.load(open(dump_file))
    for table in dump['tables']:
        if table['system'] or table.get('linked'):
            continue
        out = subprocess.run(['mdb-export', '-D', '%Y-%m-%dT%H:%M:%S', '-b', 'hex', mdb, table['name']],
                             capture_output=True, check=True)
        printed = list(csv.reader(io.StringIO(out.stdout.decode('utf-8', 'replace'))))[1:]
        issues = collections.Counter()
        example = {}
        if len(printed) != len(table['rows']):
            issues['row count %d, dump %d' % (len(printed), len(table['rows']))] += 1
        for n, (a, b) in enumerate(zip(printed, table['rows'])):
            for col, x, y in zip(table['columns'], a, b):
                k = kind(x, expected(y, col['type']), col['type'])
                if k:
                    k = '%s %s' % (col['type'], re.sub(r' \(.*', '', k))
                    issues[k] += 1
                    example.setdefault(k, (n, col['name'], x[:40], str(y)[:40]))
        print('%s: %s' % (table['name'], dict(issues) or 'agrees'))
        for k, e in example.items():
            print('    %s: row %d %s: printed %r, dump %r' % ((k,) + e))


if __name__ == '__main__':
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(sys.argv[1], sys.argv[2])
