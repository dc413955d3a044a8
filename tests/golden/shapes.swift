import SwiftUI

// SVG
struct Group1: View {

  static let intrinsicSize = CGSize(width: 100, height: 50)
  static let viewBox = CGRect(x: 10.0, y: 5.0, width: 200, height: 100)

  // Nested Groups and Shapes

  struct Reactangle1: View {

    static let intrinsicSize = CGSize(width: 20, height: 10)
    static let origin        = CGPoint(x: 5, y: 6)

    var body: some View {
      ZStack {
        RoundedRectangle(cornerRadius: 3)
          .fill(Color.gray)
        RoundedRectangle(cornerRadius: 3)
          .stroke(Color(white: 0.502), style: .init())
      }
    }
  }

  struct Reactangle2: View {

    static let intrinsicSize = CGSize(width: 20, height: 10)

    var body: some View {
      Rectangle()
        .fill(Color(red: 0.0392, green: 0.0784, blue: 0.1176))
        .rotationEffect(Angle(degrees: 45))
        .scaleEffect(x: 2, y: 2)
    }
  }

  struct Ellipse1: View {

    static let intrinsicSize = CGSize(width: 40, height: 20)
    static let origin        = CGPoint(x: 30, y: 30)

    var body: some View {
      Ellipse()
        .stroke(Color(white: 0.502), style: .init())
    }
  }

  struct Circle1: View {

    static let intrinsicSize = CGSize(width: 10, height: 10)
    static let origin        = CGPoint(x: 75, y: 15)

    var body: some View {
      ZStack {
        Circle()
          .fill(Color(red: 0.498, green: 1, blue: 0))
        Circle()
          .stroke(style: .init())
      }
    }
  }

  struct Group2: View {
    // Group

    struct Circle2: View {

      static let intrinsicSize = CGSize(width: 2, height: 2)
      static let origin        = CGPoint(x: 0, y: 0)

      var body: some View {
        Circle()
          .fill(Color.orange)
      }
    }

    var body: some View {
      Circle2()
        .frame(width: 2, height: 2, alignment: .topLeading)
        .offset(x: 5, y: 6)
    }
  }

  struct Group3: View {
    // Group

    var body: some View {
      EmptyView() // Group w/o content
    }
  }

  // SVG
  struct Group4: View {

    static let intrinsicSize = CGSize(width: 30, height: 40)

    // Nested Groups and Shapes

    struct Circle3: View {

      static let intrinsicSize = CGSize(width: 2, height: 2)
      static let origin        = CGPoint(x: 0, y: 0)

      var body: some View {
        Circle()
          .fill(Color.blue)
      }
    }

    struct Circle4: View {

      static let intrinsicSize = CGSize(width: 2, height: 2)
      static let origin        = CGPoint(x: 2, y: 2)

      var body: some View {
        Circle()
          .fill(Color.purple)
      }
    }

    var isResizable = false
    func resizable() -> Self { Self(isResizable: true) }

    var body: some View {
      if isResizable {
        GeometryReader { proxy in
          ZStack(alignment: .topLeading) {
            Circle3()
              .frame(width: 2, height: 2, alignment: .topLeading)
            Circle4()
              .frame(width: 2, height: 2, alignment: .topLeading)
              .padding(.leading, 2)
              .padding(.top, 2)
          }
          .frame(width: 30, height: 40,
                 alignment: .topLeading)
          .scaleEffect(x: proxy.size.width  / 30,
                       y: proxy.size.height / 40)
          .frame(width: proxy.size.width, height: proxy.size.height)
        }
      }
      else {
        ZStack(alignment: .topLeading) {
          Circle3()
            .frame(width: 2, height: 2, alignment: .topLeading)
          Circle4()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, 2)
            .padding(.top, 2)
        }
        .frame(width: 30, height: 40)
      }
    }
  }

  // SVG
  struct Group5: View {

    static let intrinsicSize = CGSize(width: 30, height: 100)

    // Nested Groups and Shapes

    struct Reactangle3: View {

      static let intrinsicSize = CGSize(width: 3, height: 4)

      var body: some View {
        Rectangle()
          .fill(Color.black)
      }
    }

    var isResizable = false
    func resizable() -> Self { Self(isResizable: true) }

    var body: some View {
      if isResizable {
        GeometryReader { proxy in
          Reactangle3()
            .frame(width: 3, height: 4, alignment: .topLeading)
            .frame(width: 30, height: 100,
                   alignment: .topLeading)
            .scaleEffect(x: proxy.size.width  / 30,
                         y: proxy.size.height / 100)
            .frame(width: proxy.size.width, height: proxy.size.height)
        }
      }
      else {
        Reactangle3()
          .frame(width: 3, height: 4, alignment: .topLeading)
          .frame(width: 30, height: 100)
      }
    }
  }

  var isResizable = false
  func resizable() -> Self { Self(isResizable: true) }

  var body: some View {
    if isResizable {
      GeometryReader { proxy in
        ZStack(alignment: .topLeading) {
          Reactangle1()
            .frame(width: 20, height: 10, alignment: .topLeading)
            .padding(.leading, 5)
            .padding(.top, 6)
          Reactangle2()
            .frame(width: 20, height: 10, alignment: .topLeading)
          Ellipse1()
            .frame(width: 40, height: 20, alignment: .topLeading)
            .padding(.leading, 30)
            .padding(.top, 30)
          Circle1()
            .frame(width: 10, height: 10, alignment: .topLeading)
            .padding(.leading, 75)
            .padding(.top, 15)
          Group2()
          Group3()
          Group4()
            .resizable()
            .frame(width: 30, height: 40, alignment: .topLeading)
            .padding(.leading, 10)
            .padding(.top, 20)
          Group5()
            .resizable()
            .frame(width: 30, height: 100, alignment: .topLeading)
        }
        .frame(width: Self.viewBox.width, height: Self.viewBox.height,
               alignment: .topLeading)
        .padding(.leading, Self.viewBox.minX)
        .padding(.top,     Self.viewBox.minY)
        .scaleEffect(x: proxy.size.width  / Self.viewBox.width,
                     y: proxy.size.height / Self.viewBox.height)
        .frame(width: proxy.size.width, height: proxy.size.height)
      }
    }
    else {
      ZStack(alignment: .topLeading) {
        Reactangle1()
          .frame(width: 20, height: 10, alignment: .topLeading)
          .padding(.leading, 5)
          .padding(.top, 6)
        Reactangle2()
          .frame(width: 20, height: 10, alignment: .topLeading)
        Ellipse1()
          .frame(width: 40, height: 20, alignment: .topLeading)
          .padding(.leading, 30)
          .padding(.top, 30)
        Circle1()
          .frame(width: 10, height: 10, alignment: .topLeading)
          .padding(.leading, 75)
          .padding(.top, 15)
        Group2()
        Group3()
        Group4()
          .resizable()
          .frame(width: 30, height: 40, alignment: .topLeading)
          .padding(.leading, 10)
          .padding(.top, 20)
        Group5()
          .resizable()
          .frame(width: 30, height: 100, alignment: .topLeading)
      }
      .padding(.leading, Self.viewBox.minX)
      .padding(.top,     Self.viewBox.minY)
      .frame(width: 100, height: 50)
    }
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .resizable()
        .frame(width  : 2 * Group1.intrinsicSize.width,
               height : 2 * Group1.intrinsicSize.height)
        .background(Color.clear.border(Color.green))
        .padding()
      Text("Size: 100.0x50.0").padding(.bottom)
      Text("ViewBox: 10.0,5.0 200.0x100.0").padding(.bottom)
    }
  }
}
