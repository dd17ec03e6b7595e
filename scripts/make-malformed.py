#!/usr/bin/env python3
"""Writes the malformed-input corpus under tests/malformed/ and its list of expected
messages, tests/malformed/expected.txt. Each line of that list:
    FILE <TAB> EXIT <TAB> TEXT
FILE is relative to tests/malformed; EXIT the command's exit code (templates and
settings are read in process: 0 read, 1 refused); TEXT a piece of the message or
output expected, with \\r and \\n written as such. Run again after changing it; the
files are committed so the test needs no Python."""
import os, sys

root = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..')
out = os.path.join(root, 'tests', 'malformed')
example = open(os.path.join(root, 'examples', 'harbour-lights.tbf'), 'rb').read()
lines = example.split(b'\r\n')[:-1]
rows = []

OPEN = 'This file cannot be opened by Torvanbridge - it may be badly corrupted'
HEADER = 'Torvanbrigde cannot read this file.'

def put(rel, data, code, text):
    path = os.path.join(out, rel)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, 'wb') as f:
        f.write(data)
    rows.append((rel, code, text))

def tbf(ls):
    return b'\r\n'.join(ls) + b'\r\n'

def with_line(n, value):  # n is 1-based
    ls = list(lines)
    ls[n - 1] = value
    return tbf(ls)

# ---- schedules: cut at lines across every part of the file ----
for cut in [1, 2, 12, 13, 17, 22, 23, 24, 43, 24 + 20 * 79 - 1, 24 + 20 * 79 + 5, len(lines) - 1]:
    put('schedule/cut-after-line-%d.tbf' % cut, tbf(lines[:cut]), 1, OPEN)
put('schedule/cut-mid-line.tbf', tbf(lines[:30])[:-7], 1, OPEN)
put('schedule/empty.tbf', b'', 1, HEADER)
put('schedule/header-trailing-blank.tbf', with_line(1, lines[0] + b' '), 1, HEADER)
put('schedule/header-lower-case.tbf', with_line(1, lines[0].lower()), 1, HEADER)
put('schedule/binary.tbf', bytes(range(256)) * 8, 1, HEADER)
put('schedule/zip-file.tbf', b'PK\x03\x04' + b'\x00' * 200, 1, HEADER)
put('schedule/strip-count-1001.tbf', with_line(22, b'1001'), 1,
    'The file holds 1001 strips; a schedule can hold at most 1000 strips.')
put('schedule/element-count-501.tbf', with_line(23, b'501'), 1,
    'The file holds 501 elements; a schedule can hold at most 500 elements.')
put('schedule/strip-count-negative.tbf', with_line(22, b'-1'), 1, 'Line 22 gives -1 as the number of strips.')
put('schedule/strip-count-huge.tbf', with_line(22, b'99999999999999999999'), 1, OPEN)
put('schedule/strip-count-int-min.tbf', with_line(22, b'-2147483648'), 1,
    'Line 22 gives -2147483648 as the number of strips.')
put('schedule/strip-count-text.tbf', with_line(22, b'many'), 1, OPEN)
put('schedule/next-strip-id-int-max.tbf', with_line(17, b'2147483647'), 1,
    'Line 17 gives 2147483647 as the last strip serial number; it must lie between 0 and 1000000000.')
put('schedule/next-strip-id-negative.tbf', with_line(17, b'-5'), 1,
    'Line 17 gives -5 as the last strip serial number')
put('schedule/hold-days-huge.tbf', with_line(18, b'2000000000'), 1, 'as the hold days threshold')
put('schedule/zoom-not-a-number.tbf', with_line(13, b'NAN'), 1, OPEN)
put('schedule/zoom-infinite.tbf', with_line(13, b'1E400'), 1, OPEN)
put('schedule/zoom-comma.tbf', with_line(13, b'0,75'), 0, 'Strips:      79')
# A banner standing for more days than int can count (the first banner's DayCount).
ls = list(lines)
s = int(lines[21])
for i in range(s):
    base = 23 + 20 * i
    if ls[base + 7] == b'4':
        ls[base + 17] = b'2147483647'
put('schedule/banner-days-int-max.tbf', tbf(ls), 0, '2 banners')
put('schedule/lf-line-ends.tbf', b'\n'.join(lines) + b'\n', 0, 'Strips:      79')
put('schedule/cr-line-ends.tbf', b'\r'.join(lines) + b'\r', 0, 'Strips:      79')
put('schedule/utf16-le-with-mark.tbf', b'\xff\xfe' + tbf(lines).decode('cp1252').encode('utf-16-le'), 0,
    'Title:       Harbour Lights')
put('schedule/utf8-with-mark.tbf', b'\xef\xbb\xbf' + tbf(lines).decode('cp1252').encode('utf-8'), 0,
    'Title:       Harbour Lights')
put('schedule/overlong-title.tbf', with_line(3, b'X' * 300000), 0, 'Strips:      79')
put('schedule/nul-bytes-in-fields.tbf', with_line(3, b'Har\x00bour\x00'), 0, 'Strips:      79')
put('schedule/invalid-utf8-and-1252.tbf', with_line(3, b'Caf\xe9 \xc3\xa9 \xff'), 0, 'Strips:      79')

# ---- plain-text screenplays (import-text FILE -o OUT) ----
def scene(n, cast=()):
    body = 'INT. ROOM %d - DAY\n\nSomething happens.\n\n' % n
    for c in cast:
        body += '                      %s\n          A line.\n\n' % c
    return body
put('script/empty.txt', b'', 0, 'Imported 0 scenes and 0 cast elements')
put('script/binary.txt', bytes(range(256)) * 40, 0, 'Imported 0 scenes')
put('script/1001-scenes.txt', ''.join(scene(i) for i in range(1, 1002)).encode(), 0,
    'the first 1000 scenes were imported and the last 1 scenes were left out.')
put('script/600-cast-names.txt', ''.join(scene(i, ['ACTOR %s' % chr(65 + i % 26) * 1 + 'X' * (i // 26 + 1)])
                                         for i in range(1, 601)).encode(), 0,
    'cast names were left out.')
sample = scene(1, ['MARY', 'JOHN']) + scene(2, ['MARY'])
put('script/utf16-le-notepad.txt', b'\xff\xfe' + sample.replace('\n', '\r\n').encode('utf-16-le'), 0,
    'Imported 2 scenes and 2 cast elements')
put('script/utf16-be.txt', b'\xfe\xff' + sample.encode('utf-16-be'), 0, 'Imported 2 scenes and 2 cast elements')
put('script/utf8-with-mark.txt', b'\xef\xbb\xbf' + sample.encode(), 0, 'Imported 2 scenes and 2 cast elements')
put('script/overlong-line.txt', (sample + 'A' * 300000 + '\n').encode(), 0, 'Imported 2 scenes')
put('script/only-headings.txt', ''.join('EXT. FIELD %d - NIGHT\n' % i for i in range(50)).encode(), 0,
    'Imported 50 scenes')
put('script/cr-only.txt', sample.replace('\n', '\r').encode(), 0, 'Imported 2 scenes and 2 cast elements')
put('script/nul-bytes.txt', sample.replace('ROOM', 'RO\x00OM').encode(), 0, 'Imported 2 scenes')

# ---- Final Draft reports (scene-*: as the scene report, script-*: as the script report) ----
put('finaldraft/scene-empty.txt', b'', 0, 'Imported 5 scenes')
put('finaldraft/scene-no-lengths.txt', b'1\tINT. KITCHEN - NIGHT\t1\n2\tEXT. BARN\t2\n', 1,
    'Final Draft')
put('finaldraft/scene-binary.txt', bytes(range(256)) * 10, 1, '')
put('finaldraft/scene-utf16.txt', b'\xff\xfe' + '1\tINT. KITCHEN - NIGHT\t1\t1 3/8 Pgs\r\n'.encode('utf-16-le'), 0,
    'Imported 5 scenes')
put('finaldraft/script-1001-scenes.txt',
    ''.join('## Page: %d, Scene: %d\nINT. ROOM - DAY\n\n' % (i, i) for i in range(1, 1002)).encode(), 0,
    'the first 1000 scenes were imported and the last 1 scenes were left out.')
put('finaldraft/script-cut.txt', b'"Harbour Lights" - Script Report\n\n## Page: 1, Sc', 0, 'Imported 1 scenes')
put('finaldraft/script-overlong-heading.txt', b'## Page: 1, Scene: 1\nINT. ' + b'A' * 200000 + b'\n', 0,
    'Imported 1 scenes')

# ---- report templates (loaded in process) ----
good = open(os.path.join(root, 'templates', 'Oneline1.dfm'), 'rb').read()
put('template/empty.dfm', b'', 1, 'line 1: expected "object", found the end of the file')
put('template/binary-form.dfm', b'TPF0\x06TForm1' + bytes(64), 1, 'found a binary form file')
put('template/cut-half-way.dfm', good[:len(good) // 2], 1, 'found the end of the file')
put('template/nested-objects.dfm', b'object F: TForm\n' + b'object A: TPanel\n' * 5000 + b'end\n' * 5001, 1,
    'nest deeper than 64 levels')
put('template/nested-lists.dfm', b'object F: TForm\n  X = ' + b'(' * 10000 + b')' * 10000 + b'\nend\n', 1,
    'line 2: objects and values nest deeper than 64 levels')
put('template/hex-too-large.dfm', b'object F: TForm\n  Tag = -$FFFFFFFFFFFFFFFF\nend\n', 1,
    'line 2: "-$FFFFFFFFFFFFFFFF" is too large a number')
put('template/int64-min.dfm', b'object F: TForm\n  object R: TAlReport\n    LeftMarginMM = -9223372036854775808\n  end\nend\n',
    1, 'line 3: "LeftMarginMM" must lie between 0 and 1000, found -9223372036854775808')
put('template/decimal-too-large.dfm', b'object F: TForm\n  Tag = 99999999999999999999\nend\n', 1,
    'line 2: "99999999999999999999" is not a valid number')
put('template/font-height-int-min.dfm',
    b'object F: TForm\n  Font.Height = -2147483648\n  object R: TAlReport\n  end\nend\n', 1,
    'line 2: "Font.Height" must lie between -10000 and 10000, found -2147483648')
band = (b'object F: TForm\n  object R: TAlReport\n  end\n  object B: tAlBand\n    BandType = alr_Detail\n'
        b'    Top = 0\n    Height = %s\n    Columns = %s\n  end\nend\n')
put('template/band-height-int-max.dfm', band % (b'2147483647', b'1'), 1,
    'line 7: "Height" must lie between -500000 and 500000, found 2147483647')
put('template/columns-wrapping.dfm', band % (b'20', b'4294967297'), 1,
    'line 8: "Columns" must lie between 1 and 20, found 4294967297')
put('template/unterminated-string.dfm', b"object F: TForm\n  Caption = 'open\nend\n", 1,
    'line 2: expected "\'" to close the string before the end of the line')
put('template/no-report.dfm', b'object F: TForm\nend\n', 1, 'TAlReport')
put('template/utf16-with-mark.dfm', b'\xff\xfe' + good.decode('cp1252').encode('utf-16-le'), 0, '')

# ---- settings files (read in process) ----
put('settings/utf8-mark-stray-byte.ini', b'\xef\xbb\xbf[Files]\r\nAutosavetime=7\r\n[Strips]\r\nFont=Caf\xe9\r\n', 0,
    'Autosavetime=7')
put('settings/binary.ini', bytes(range(256)) * 16, 0, 'Autosavetime=0')
put('settings/autosave-huge.ini', b'[Files]\r\nAutosavetime=99999999\r\n', 0, 'Autosavetime=99999999')
put('settings/bad-colour.ini', b'[Strips]\r\nCB1=clNoSuchColour\r\nCT2=$GG\r\n', 0, 'CB1')
put('settings/utf16.ini', b'\xff\xfe' + '[Files]\r\nAutosavetime=3\r\n'.encode('utf-16-le'), 0, 'Autosavetime=3')
put('settings/overlong-line.ini', b'[General]\r\nWeatherURL=' + b'x' * 300000 + b'\r\n', 0, 'Autosavetime=0')
put('settings/perf-not-a-number.ini', b'[Printing]\r\nPerfMargin=1e999\r\nPerfWidth=abc\r\n', 0, 'PerfWidth')

with open(os.path.join(out, 'expected.txt'), 'w', encoding='utf-8', newline='\n') as f:
    f.write('# Written by scripts/make-malformed.py: FILE, exit code, expected text.\n')
    for rel, code, text in rows:
        f.write('%s\t%d\t%s\n' % (rel, code, text.replace('\r', '\\r').replace('\n', '\\n')))
print('%d files' % len(rows))
