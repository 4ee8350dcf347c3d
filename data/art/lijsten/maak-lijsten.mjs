// Makes the frame files data/Lijsten/*.fra from lijsten.json: node data/art/lijsten/maak-lijsten.mjs
//
// A frame is a list of parts from outside to inside: so many rings, shaded from one colour to
// another; a part without colours is a gap, through which the card is seen. "grain" roughens the
// shade from ring to ring by so much. The picture is a BMP of 80 x 80 pixels that shows the left
// bottom corner of the frame, so that the rings cross its row y = 1 from x = 6 on. White is no ring;
// therefore no part of a ring's colour may reach 250.
import { mkdirSync, readFileSync, writeFileSync } from 'node:fs';

const side = 80;
const margin = 6;
const white = [255, 255, 255];
const source = new URL('.', import.meta.url);
const target = new URL('../../Lijsten/', source);

const parts = (hex) => [1, 3, 5].map((at) => parseInt(hex.slice(at, at + 2), 16));

function rings({ parts: rows, grain = 0 }) {
  let seed = 12345;
  const rough = () => {
    seed = (seed * 1103515245 + 12345) % 2147483648;
    return (seed / 2147483648 - 0.5) * 2 * grain;
  };
  return rows.flatMap(([count, from, to]) =>
    Array.from({ length: count }, (_, i) => {
      if (!from) {
        return white;
      }
      const share = count > 1 ? i / (count - 1) : 0;
      const shift = rough();
      return parts(from).map((byte, channel) => {
        const shade = byte + (parts(to)[channel] - byte) * share + shift;
        return Math.min(249, Math.max(0, Math.round(shade)));
      });
    }));
}

function bmp(colourAt) {
  const header = Buffer.alloc(54);
  header.write('BM');
  header.writeUInt32LE(54 + side * side * 3, 2);
  header.writeUInt32LE(54, 10);
  header.writeUInt32LE(40, 14);
  header.writeInt32LE(side, 18);
  header.writeInt32LE(side, 22);
  header.writeUInt16LE(1, 26);
  header.writeUInt16LE(24, 28);
  const rows = Buffer.alloc(side * side * 3);
  for (let y = 0; y < side; ++y) {
    for (let x = 0; x < side; ++x) {
      const [r, g, b] = colourAt(x, y);
      rows.set([b, g, r], ((side - 1 - y) * side + x) * 3);
    }
  }
  return Buffer.concat([header, rows]);
}

mkdirSync(target, { recursive: true });
for (const [name, frame] of Object.entries(JSON.parse(readFileSync(new URL('lijsten.json', source))))) {
  const colours = rings(frame);
  const picture = bmp((x, y) => colours[Math.min(x - margin, side - 1 - margin - y)] ?? white);
  writeFileSync(new URL(`${name}.fra`, target), picture);
}
