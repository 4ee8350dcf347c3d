// Renders the sheets data/art/stickers/*.svg to data/Stickers/*.art and the line drawings
// data/art/vectors/*.svg to data/Vectors/*.vec, in their own size, on white, as PNG:
// npm install @resvg/resvg-js && node data/art/maak-bibliotheken.mjs
import { mkdirSync, readdirSync, readFileSync, writeFileSync } from 'node:fs';
import { Resvg } from '@resvg/resvg-js';

const source = new URL('.', import.meta.url);
const libraries = [
  ['stickers/', '../Stickers/', '.art'],
  ['vectors/', '../Vectors/', '.vec'],
];

for (const [from, to, extension] of libraries) {
  const target = new URL(to, source);
  mkdirSync(target, { recursive: true });
  for (const name of readdirSync(new URL(from, source)).filter((file) => file.endsWith('.svg'))) {
    const drawing = readFileSync(new URL(from + name, source), 'utf8');
    const picture = new Resvg(drawing, { background: 'white' }).render();
    writeFileSync(new URL(name.replace(/\.svg$/, extension), target), picture.asPng());
  }
}
