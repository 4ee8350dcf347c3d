// Makes the picture libraries: npm i @resvg/resvg-js sharp, then node data/art/libraries/maak.mjs
//
// Pictures are JPEG files of a card's size, masks of 640 x 440; the arrow sheet is a PNG under its own
// extension. The script lettering is the font "Z003" of Debian's package fonts-urw-base35. Drawings are
// rendered twice too large and made smaller, so that edges come out smooth.
import { createRequire } from 'node:module';
import { mkdirSync, writeFileSync } from 'node:fs';
import { pictures } from './platen.mjs';
import { cells } from './pijlen.mjs';

// Installed where the script is started, not beside it.
const require = createRequire(`${process.cwd()}/`);
const { Resvg } = require('@resvg/resvg-js');
const sharp = require('sharp');

const target = new URL('../../', import.meta.url);
const fonts = { loadSystemFonts: false, fontFiles: ['/usr/share/fonts/opentype/urw-base35/Z003-MediumItalic.otf'],
  fontDirs: ['/usr/share/fonts/truetype/liberation'] };

function render(width, height, inner) {
  const svg = `<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 ${width} ${height}">${inner}</svg>`;
  const png = new Resvg(svg, { fitTo: { mode: 'width', value: width * 2 }, background: '#fff', font: fonts }).render().asPng();
  return sharp(png).resize(width, height, { kernel: 'cubic' }).flatten({ background: '#fff' });
}

for (const { folder, name, width, height, drawing } of pictures) {
  mkdirSync(new URL(`${folder}/`, target), { recursive: true });
  const jpeg = { quality: folder === 'Maskers' ? 100 : 90, chromaSubsampling: '4:4:4', mozjpeg: folder !== 'Maskers' };
  writeFileSync(new URL(`${folder}/${name}.jpg`, target), await render(width, height, drawing).jpeg(jpeg).toBuffer());
}

const placed = cells.map((cell, i) => `<svg x="${(i % 4) * 100}" y="${Math.floor(i / 4) * 100}" width="100" height="100" viewBox="0 0 100 100">${cell}</svg>`);
const raw = await render(400, 2000, placed.join('')).removeAlpha().raw().toBuffer();
// Three bits less a colour part: half the file, and no difference to be seen. White stays white.
const coarse = raw.map((byte) => (byte >= 252 ? 255 : (byte + 4) & 248));
const sheet = await sharp(coarse, { raw: { width: 400, height: 2000, channels: 3 } }).png({ compressionLevel: 9, adaptiveFiltering: true }).toBuffer();
writeFileSync(new URL('Data/Arrows.arr', target), sheet);
console.log(`${pictures.length} pictures, ${cells.length} cells, sheet ${sheet.length} bytes`);
