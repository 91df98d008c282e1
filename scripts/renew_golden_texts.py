#!/usr/bin/env python3
"""Rewrites the kGolden entries of a golden test file from what sumforge-cli prints now.
Use it only after a change of a generator's text on purpose, and read the diff before committing.
usage: scripts/renew_golden_texts.py FILE MODULE [CODE...]   (only the listed codes, or all)"""
import re, subprocess, sys
import os
cli = os.environ.get('SUMFORGE_CLI', os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', 'build', 'cli', 'sumforge-cli'))
path, module = sys.argv[1], sys.argv[2]
only = set(sys.argv[3:])
src = open(path, encoding='utf-8').read()

def cstr(s):
    return s.replace('\\', '\\\\').replace('"', '\\"')

def pieces(text, indent):
    # 100-character pieces as the files keep them (counted in characters)
    out = [text[i:i+100] for i in range(0, len(text), 100)] or ['']
    return ('\n' + indent).join('"%s"' % cstr(p) for p in out)

def gen(code):
    r = subprocess.run([cli, 'generate', module, code], capture_output=True, text=True,
                       env={'QT_QPA_PLATFORM': 'offscreen', 'PATH': '/usr/bin:/bin'})
    out = r.stdout
    m = re.match(r'Statement: (.*)\nSolution: (.*)\n\Z', out, re.S)
    if not m: raise SystemExit('bad output for %s: %r' % (code, out[:200]))
    return m.group(1), m.group(2)

entry = re.compile(r'\{"(\d{16})",\n(\s+)((?:"(?:[^"\\]|\\.)*"\s*)+),\n\s+((?:"(?:[^"\\]|\\.)*"\s*)+)\}')
def rep(m):
    code, indent = m.group(1), m.group(2)
    if only and code not in only: return m.group(0)
    st, so = gen(code)
    return '{"%s",\n%s%s,\n%s%s}' % (code, indent, pieces(st, indent), indent, pieces(so, indent))
new, n = entry.subn(rep, src)
open(path, 'w', encoding='utf-8').write(new)
print('entries', n)
